#include "tablepages/CellRules.h"

#include "html/Elements.h"
#include "html/TableBuilder.h"
#include "tablepages/TableTypes.h"
#include "text/CodePage.h"

namespace ostrel::tablepages {

namespace {

Text Attribute(TextView name, const Text& value) {
    Text tag;
    if (!value.empty()) html::AddHTMLTag(tag, name, value);
    return tag;
}

/// White is the colour of the page and is not written.
void AddBodyColour(Text& tag, const Text& colour) {
    const Text plain = Upper(TrimBlanks(colour));
    if (!plain.empty() && plain != "#FFFFFF" && plain != "FFFFFF") html::AddHTMLTag(tag, "BGCOLOR", colour);
}

} // namespace

AlignTags::AlignTags(const TableOptions& options)
    : bodyVAlign(Attribute("VALIGN", options.PageTableVAlign)),
      headerVAlign(Attribute("VALIGN", options.PageTableHeaderVAlign)),
      bodyAlign(Attribute("ALIGN", options.PageTableAlign)),
      headerAlign(Attribute("ALIGN", options.PageTableHeaderAlign)) {
    if (headerVAlign.empty()) headerVAlign = bodyVAlign;
    if (headerAlign.empty()) headerAlign = bodyAlign;
}

bool CellRules::Blank(TextView value) const {
    if (value.find_first_not_of(' ') == TextView::npos) return true;
    return options_.PageTableZeroBlank && html::IsZeroBlank(value, decimalDelimiter_);
}

Text CellRules::Before(bool addEdges) const {
    Text before;
    if (addEdges) before = options_.PageTableAddLeft;
    if (options_.PageTableBold) before += "<B>";
    if (options_.PageTableItalic) before += "<I>";
    return before;
}

Text CellRules::After(bool addEdges) const {
    Text after;
    if (options_.PageTableItalic) after += "</I>";
    if (options_.PageTableBold) after += "</B>";
    if (addEdges) after += options_.PageTableAddRight;
    return after;
}

void CellRules::SetTag(bool empty, Text& tag, const Placement& placement) {
    if (empty) {
        if (!HasColour(tag)) tag.clear();
        return;
    }
    if (!tag.empty()) return;
    tag = placement.vAlign;
    if (!placement.align.empty())
        tag.append(" ").append(placement.align);
    else if (placement.right)
        tag += " ALIGN=\"RIGHT\"";
    tag = Text(TrimBlanks(tag));
}

void CellRules::SetCell(TextView value, Text& cell, Text& tag, const Placement& placement) const {
    const bool empty = Blank(value);
    if (empty)
        cell.clear();
    else
        cell = Before(placement.addEdges).append(value).append(After(placement.addEdges));
    SetTag(empty, tag, placement);
}

bool CellRules::ColouredByColumn(Text& tag, Long sourceColumn) const {
    if (HasColour(tag)) return true;
    const Text* colour = options_.PageTableColumnColor.Find(sourceColumn);
    if (!colour || colour->empty()) return false;
    html::AddHTMLTag(tag, "BGCOLOR", *colour);
    return true;
}

void CellRules::ColumnColour(Text& tag, Long sourceColumn) const { ColouredByColumn(tag, sourceColumn); }

void CellRules::CellColour(Text& tag, Long record, Long gridColumn, Long sourceColumn) const {
    if (ColouredByColumn(tag, sourceColumn)) return;
    const bool oddRecord = record % 2 != 0, oddColumn = gridColumn % 2 != 0;
    bool first = true;
    switch (options_.PageTableBodyPattern) {
    case owhPatternAll:
        break;
    case owhPatternRows:
        first = oddRecord;
        break;
    case owhPatternColumns:
        first = oddColumn;
        break;
    case owhPatternCheckers:
        first = oddRecord == oddColumn;
        break;
    default:
        return;
    }
    AddBodyColour(tag, first ? options_.PageTableBodyColor : options_.PageTableBodyColor2);
}

} // namespace ostrel::tablepages

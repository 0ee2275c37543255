#include "tablepages/RecordPage.h"

#include "html/Elements.h"
#include "html/FontType.h"
#include "html/PageText.h"
#include "tablepages/HeaderLinkRows.h"
#include "tablepages/TableTypes.h"

namespace ostrel::tablepages {

namespace {

constexpr Long Columns = 2;

} // namespace

void RecordPage::Block::Set(GridRows rows, html::TagTable& tags) {
    rows_ = std::move(rows);
    cells_.clear();
    for (const GridRow& row : rows_) {
        auto& cells = cells_.emplace_back();
        for (Long column = 1; column <= row.Width(); ++column) {
            const GridCell& cell = *row.Find(column);
            cells.push_back({{}, cell.text, {}, tags.Intern(cell.tag)});
        }
    }
}

void RecordPage::Block::Write(html::TableWriter& table) const {
    for (const auto& cells : cells_) table.Row(cells);
}

RecordPage::RecordPage(TableRun& run, const Array<Text>& names)
    : run_(run), options_(run.frame.options), before_(run.frame.rules.Before(true)),
      after_(run.frame.rules.After(true)) {
    const TextView colour = options_.PageTableHeaderBGColor;
    SetSpaces(aboveHeader_, options_.PageTableHeaderAbove, {{}, colour, colour});
    SetSpaces(belowHeader_, options_.PageTableHeaderBelow, {colour, {}, colour});
    if (options_.PageTableHeaderSpace && options_.PageTableSeparateAbove == owhSpaceNone)
        SetSpaces(headerSpace_, owhSpaceSpace, {});
    SetSpaces(aboveFields_, options_.PageTableSeparateAbove, {});
    SetSpaces(between_, options_.PageTableSeparateBetween, {});
    SetSpaces(belowFields_, options_.PageTableSeparateBelow, {});

    for (Long column = 1; column <= run.frame.input.columns; ++column)
        nameCells_.Append(before_ + "<B>" + names.Get(column) + "</B>" + after_);
    nameTags_ = FieldTags(true, 1);
    valueTags_ = FieldTags(true, 2);
    emptyTags_ = FieldTags(false, 2);
}

/// Spacers span what the main table shows of its first two columns.
void RecordPage::SetSpaces(Block& block, Long spaceType, const SpaceColours& colours) {
    const ReportFrame& frame = run_.frame;
    Long span = 0;
    for (Long source = 1; source <= Columns; ++source)
        if (source > frame.input.columns || frame.columns.Shows(source)) ++span;
    GridRows rows;
    AddSpaceRows(rows, options_, span, spaceType, colours);
    block.Set(std::move(rows), tags_);
}

RecordPage::Tags RecordPage::FieldTags(bool filled, Long column) {
    const AlignTags& align = run_.frame.align;
    Tags tags{};
    for (const Long record : {0, 1}) {
        Text tag;
        CellRules::SetTag(!filled, tag, {false, align.bodyAlign, align.bodyVAlign, true});
        run_.frame.rules.CellColour(tag, record, column, column);
        tags[static_cast<std::size_t>(record)] = tags_.Intern(tag);
    }
    return tags;
}

void RecordPage::SetLinks(Block& block, Long position) {
    if (!options_.PageTableSeparateHeaderLinks) return;
    GridRows rows;
    AddHeaderLinkRows(rows, run_.frame.scope, {position, linkColumns_, {}, true});
    block.Set(std::move(rows), tags_);
}

void RecordPage::SetHeader(TextView nameAddress, TextView valueAddress) {
    const html::PageScope& scope = run_.Scope();
    const AlignTags& align = run_.frame.align;
    const CellRules::Placement placement{false, align.headerAlign, align.headerVAlign, false};
    const bool bold = options_.PageTableHeaderBold, italic = options_.PageTableHeaderItalic;
    GridRows rows(1, GridRow(Columns));
    const auto set = [&](Long column, TextView name, TextView address) {
        Text text = html::CreateString(name, bold, italic);
        if (!address.empty()) text = html::CreateLink(scope, address, text, false, false, false);
        text = html::PageFontStartTag(scope, owhFontTableHeader) + options_.PageTableAddLeft + text +
               options_.PageTableAddRight + html::PageFontEndTag(scope, owhFontTableHeader);
        GridCell& cell = *rows.front().Find(column);
        run_.frame.rules.SetCell(text, cell.text, cell.tag, placement);
        if (!options_.PageTableHeaderBGColor.empty())
            html::AddHTMLTag(cell.tag, "BGCOLOR", options_.PageTableHeaderBGColor);
    };
    set(1, "Field", nameAddress);
    set(2, "Value", valueAddress);
    header_.Set(std::move(rows), tags_);
}

void RecordPage::WriteFields(html::TableWriter& table, const Array<Text>& values,
                             const Array<Long>& pointers) const {
    const CellRules& rules = run_.frame.rules;
    Long fields = 0;
    for (const Long column : pointers) {
        const Text* name = nameCells_.Find(column);
        const Text* value = values.Find(column);
        if (!name || !value || !Holds(column)) continue;
        const bool blank = rules.Blank(*value);
        if (blank && options_.PageTableIgnoreBlankColumns) continue;
        if (fields > 0) between_.Write(table);
        const std::size_t odd = ++fields % 2;
        html::CellView cells[Columns] = {{{}, *name, {}, nameTags_[odd]}, {}};
        if (blank)
            cells[1].tags = emptyTags_[odd];
        else
            cells[1] = {before_, *value, after_, valueTags_[odd]};
        table.Row(cells);
    }
}

void RecordPage::Build(TextView nameAddress, TextView valueAddress, const Array<Text>& values,
                       const Array<Long>& pointers) {
    SetLinks(linksAbove_, 1);
    SetHeader(nameAddress, valueAddress);
    SetLinks(linksBelow_, 2);
    linkColumns_ = Columns;
    const auto fill = [&](html::TableWriter& table) {
        for (const Block* block : {&linksAbove_, &aboveHeader_, &header_, &belowHeader_, &linksBelow_,
                                   &headerSpace_, &aboveFields_})
            block->Write(table);
        WriteFields(table, values, pointers);
        belowFields_.Write(table);
    };
    run_.table.Build(run_.Scope(), options_, Columns, false, std::ref(fill));
}

} // namespace ostrel::tablepages

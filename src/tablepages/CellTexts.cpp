#include "tablepages/CellTexts.h"

#include "html/Elements.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

CellTexts::CellTexts(const ReportFrame& frame)
    : frame_(frame), silent_{frame.scope.pages.context, silentDraft_, frame.scope.pages.settings,
                             frame.scope.pages.fonts, frame.scope.pages.service},
      before_(frame.rules.Before(true)), after_(frame.rules.After(true)),
      edgesVanish_(services::StripTags(before_ + "x" + after_) == "x") {
    const Text& point = frame.scope.pages.service.DecimalDelimiter;
    point_ = point.size() == 1 ? point[0] : '0';
    linked_.resize(static_cast<std::size_t>(frame.input.columns) + 1);
    links_.resize(linked_.size());
    for (const Long column : frame.columns.shown) {
        const Text* link = frame.options.PageTableColumnLink.Find(column);
        linked_[static_cast<std::size_t>(column)] = link && !link->empty();
    }
    const Text file = services::FileName(frame.filePath);
    for (std::size_t start = 0;;) {
        const std::size_t point_at = file.find('.', start);
        recordPage_.push_back(file.substr(start, point_at == Text::npos ? Text::npos : point_at - start));
        if (point_at == Text::npos) break;
        start = point_at + 1;
    }
}

TextView CellTexts::MakeLink(const html::PageScope& scope, Long sourceColumn, TextView value) {
    address_ = *frame_.options.PageTableColumnLink.Find(sourceColumn);
    address_.append(".").append(html::CreateAnchorName(value));
    return links_[static_cast<std::size_t>(sourceColumn)] = html::CreateLinkTitleSplit(
               scope, address_, value, frame_.options.PageTableColumnLinkTT.Get(sourceColumn), false, false,
               false);
}

CellTexts::Pieces CellTexts::Data(Long sourceRow, Long sourceColumn) {
    TextView value = frame_.input.cells.Html(sourceRow, sourceColumn);
    if (Linked(sourceColumn)) value = MakeLink(silent_, sourceColumn, value);
    return Filled(value) ? Pieces{before_, value, after_} : Pieces{};
}

void CellTexts::RecordText(const html::PageScope& scope, Text& text, Long sourceRow) {
    const TableOptions& options = frame_.options;
    number_.clear();
    AppendLong(number_, sourceRow);
    Text& label = joined_;
    label.clear();
    if (options.PageTableRecordNumberBold) label += "<B>";
    if (options.PageTableRecordNumberItalic) label += "<I>";
    label.append("#").append(number_);
    if (options.PageTableRecordNumberItalic) label += "</I>";
    if (options.PageTableRecordNumberBold) label += "</B>";
    if (!options.PageTableAddSeparate) {
        text = label;
        return;
    }
    address_ = recordPage_[0];
    for (std::size_t part = 1; part < recordPage_.size(); ++part)
        address_.append("_Rec_Num_").append(number_).append(".").append(recordPage_[part]);
    text = "<A NAME=\"Rec_Num_";
    text.append(number_).append("\">");
    html::AppendLinkTitle(scope, text, address_, label, options.PageTableSeparateTTTo, false, false, false);
}

CellTexts::Pieces CellTexts::RecordNumber(Long sourceRow, bool numbered) {
    if (!numbered) return {};
    RecordText(silent_, record_, sourceRow);
    return {before_, record_, after_};
}

Text CellTexts::Joined(const Pieces& pieces) {
    Text text(pieces.before);
    return text.append(pieces.value).append(pieces.after);
}

TextView CellTexts::SimpleValue(const Pieces& pieces) const {
    if (!edgesVanish_ || pieces.before.data() != before_.data() || pieces.after.data() != after_.data())
        return {};
    char last = 0;
    for (const char c : pieces.value) {
        if (c == '<' || c == '&' || (c == ' ' && last == ' ')) return {};
        last = c;
    }
    return pieces.value;
}

TextView CellTexts::Plain(const Pieces& pieces) {
    if (pieces.Empty()) return {};
    if (const TextView value = SimpleValue(pieces); !value.empty()) return TrimCrLfView(value);
    joined_ = pieces.before;
    joined_.append(pieces.value).append(pieces.after);
    services::StripTagsInto(joined_, plain_);
    return plain_;
}

void CellTexts::TestLinks(Long sourceRow, bool numbered) {
    const html::PageScope& scope = frame_.scope.pages;
    for (const Long column : frame_.columns.shown) {
        if (column == 0) {
            if (numbered && frame_.options.PageTableAddSeparate) RecordText(scope, record_, sourceRow);
        } else if (Linked(column)) {
            MakeLink(scope, column, frame_.input.cells.Html(sourceRow, column));
        }
    }
}

} // namespace ostrel::tablepages

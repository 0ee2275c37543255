#include "tablepages/RecordGrid.h"

#include "text/Keep.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

RecordGrid::RecordGrid(const ReportFrame& frame, bool reversed, bool breaks)
    : frame_(frame), reversed_(reversed) {
    if (breaks)
        for (Long column = 1; column <= frame.input.columns; ++column)
            if (frame.options.PageTableColumnBreak.Get(column)) breakColumns_.push_back(column);
    plain_ = breakColumns_.empty() && frame.options.PageTableColumnRecord == 0 &&
             !frame.options.PageTableIgnoreBlankRows;
    if (!plain_) rows_.reserve(static_cast<std::size_t>(frame.input.rows));
}

bool RecordGrid::Shown(Long source) const {
    for (const Long column : frame_.columns.shown)
        if (column > 0 && !frame_.rules.Blank(frame_.input.cells.Html(source, column))) return true;
    return false;
}

Long RecordGrid::SourceOf(Long step) const {
    const Long source = reversed_ ? frame_.input.rows - step + 1 : step;
    return !frame_.options.PageTableIgnoreBlankRows || Shown(source) ? source : 0;
}

bool RecordGrid::Add(Long source) {
    if (plain_) {
        ++plainCount_;
        return true;
    }
    Row row{source, 1, 1};
    const Long column = frame_.options.PageTableColumnRecord;
    if (column != 0) {
        row.sub = 0;
        const TextView number = frame_.input.cells.Html(source, column);
        if (const std::size_t point = number.find('.'); point != TextView::npos)
            Keep(row.sub, ToLong(LeadingNumber(number.substr(point + 1))));
    }
    rows_.push_back(row);
    if (row.sub <= 1) return true;
    if (static_cast<std::size_t>(row.sub) <= rows_.size())
        if (Row& first = rows_[rows_.size() - static_cast<std::size_t>(row.sub)]; first.source > 0)
            ++first.count;
    return false;
}

void RecordGrid::AddTotalRow(Long block, Long rowInBlock) { rows_.push_back({-block, 0, rowInBlock}); }

Long RecordGrid::BreakColumn(Long source) const {
    for (const Long column : breakColumns_)
        if (source == frame_.input.rows ||
            frame_.input.cells.Html(source, column) != frame_.input.cells.Html(source + 1, column))
            return column;
    return 0;
}

Long RecordGrid::SourceBefore(Long place) const {
    for (--place; place >= 0; --place)
        if (const Long source = At(place).source; source > 0) return source;
    return 0;
}

TextView RecordGrid::RecordTag(Long place, Long source) const {
    if (breakColumns_.empty() || frame_.input.tags.Rows() == 0) return {};
    const Long before = SourceBefore(place);
    return before > 0 ? frame_.input.tags.Html(source, BreakColumn(before)) : TextView();
}

} // namespace ostrel::tablepages

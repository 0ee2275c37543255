#include "tablepages/Totals.h"

#include <algorithm>
#include <limits>

#include "html/Elements.h"
#include "services/TimeText.h"
#include "tablepages/SpaceRows.h"
#include "tablepages/TotalFormats.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

/// A sum that leaves the range of whole numbers stays as it was.
void AddWhole(Long& sum, Long value) {
    const long long result = static_cast<long long>(sum) + value;
    if (result >= std::numeric_limits<Long>::min() && result <= std::numeric_limits<Long>::max())
        sum = static_cast<Long>(result);
}

template <class Value>
Value SumOf(TotalKind kind, Value total, Value& base, Value sort) {
    if (kind == TotalKind::Sort) return sort;
    if (kind == TotalKind::Grand) return total;
    const Value result = total - base;
    base = total;
    return result;
}

} // namespace

void Totals::Settle(const ReportFrame& frame) {
    const TableOptions& options = frame.options;
    columns_.clear();
    any_ = false;
    for (Long column = 1; column <= frame.input.columns; ++column)
        any_ |= options.PageTableColumnTotal.Get(column) || options.PageTableColumnTotalTime.Get(column);
    for (std::size_t place = 0; place < frame.columns.shown.size(); ++place) {
        const Long source = frame.columns.shown[place];
        const bool number = options.PageTableColumnTotal.Get(source);
        if (!number && !options.PageTableColumnTotalTime.Get(source)) continue;
        Column& column = columns_.emplace_back();
        column.source = source;
        column.grid = static_cast<Long>(place) + 1;
        column.time = !number;
        if (number) column.format = TotalFormat(frame, source);
    }
}

void Totals::Clear(bool all) {
    for (Column& column : columns_) {
        column.numberSort = 0;
        column.secondsSort = 0;
        if (!all) continue;
        column.number = column.numberBase = 0;
        column.seconds = column.secondsBase = 0;
    }
}

void Totals::AddNumber(Column& column, Double value, bool page, bool sort) {
    if (page) column.number += value;
    if (sort) column.numberSort += value;
}

void Totals::AddSeconds(Column& column, Long seconds, bool page, bool sort) {
    if (page) AddWhole(column.seconds, seconds);
    if (sort) AddWhole(column.secondsSort, seconds);
}

std::vector<Text> Totals::Show(const ReportFrame& frame, TotalKind kind) {
    std::vector<Text> texts;
    texts.reserve(columns_.size());
    for (Column& column : columns_) {
        Text& text = texts.emplace_back();
        if (column.time)
            text = services::HoursMinutesSeconds(
                SumOf(kind, column.seconds, column.secondsBase, column.secondsSort));
        else
            text =
                FormatNumber(SumOf(kind, column.number, column.numberBase, column.numberSort), column.format);
        auto& event = frame.context.events.PageCreateTableTotalFormat;
        if (!event.Heard()) continue;
        Long source = column.source;
        Text name = frame.Name(source);
        event(source, name, text);
    }
    return texts;
}

TotalBlock::TotalBlock(const ReportFrame& frame, const Totals& totals, TotalKind kind)
    : frame_(frame), columns_(totals.Columns()),
      colour_(kind == TotalKind::Grand   ? frame.options.PageTableTotalColour
              : kind == TotalKind::Break ? frame.options.PageTableTotalBreakColour
                                         : frame.options.PageTableTotalSortColour),
      legend_(kind == TotalKind::Grand   ? frame.options.PageTableTotalLegend
              : kind == TotalKind::Break ? frame.options.PageTableTotalBreakLegend
                                         : frame.options.PageTableTotalSortLegend) {
    const TableOptions& options = frame.options;
    switch (kind) {
    case TotalKind::Grand:
        above_ = options.PageTableTotalAbove;
        below_ = options.PageTableTotalBelow;
        break;
    case TotalKind::Break:
        above_ = options.PageTableTotalBreakAbove;
        below_ = options.PageTableTotalBreakBelow;
        break;
    case TotalKind::Sort:
        above_ = options.PageTableTotalSortAbove;
        below_ = options.PageTableTotalSortBelow;
        break;
    }
}

GridRows TotalBlock::Above(TextView topColour) const {
    GridRows rows;
    AddSpaceRows(rows, frame_.options, frame_.columns.Width(), above_, {topColour, colour_, colour_});
    return rows;
}

GridRows TotalBlock::Below() const {
    GridRows rows;
    AddSpaceRows(rows, frame_.options, frame_.columns.Width(), below_, {colour_, {}, colour_});
    return rows;
}

GridRow TotalBlock::Row(std::span<const Text> texts, const Text* recordTag, TextView group) const {
    const std::vector<Long>& shown = frame_.columns.shown;
    GridRow row(frame_.columns.Width());
    std::size_t next = 0;
    for (std::size_t place = 0; place < shown.size(); ++place) {
        const Long source = shown[place];
        GridCell& cell = *row.Find(static_cast<Long>(place) + 1);
        if (source == 0) {
            // A sorted page leaves the cell blank, without even the colour of the block.
            if (!recordTag) continue;
            cell.tag = *recordTag;
            CellRules::SetTag(true, cell.tag, {});
        } else if (next < columns_.size() && columns_[next].source == source) {
            frame_.rules.SetCell(
                texts[next], cell.text, cell.tag,
                {frame_.input.right.Get(source), frame_.align.bodyAlign, frame_.align.bodyVAlign, true});
            ++next;
        }
        cell.saved = cell.tag;
        if (!colour_.empty()) html::AddHTMLTag(cell.tag, "BGCOLOR", colour_);
        frame_.rules.ColumnColour(cell.tag, source);
    }
    PutLegend(row, group);
    return row;
}

LegendPlace PlaceOfLegend(const TableOptions& options, std::span<const Long> totals, Long width) {
    const long long column =
        static_cast<long long>(options.PageTableTotalColumn) + (options.PageTableRecordNumber ? 1 : 0);
    const Long first = totals.empty() ? 0 : totals.front();
    if (column >= 1 && first > column) return {static_cast<Long>(column), first - static_cast<Long>(column)};
    if (!options.PageTableTotalGroup) return {};
    if (first > 1) return {1, first - 1};
    for (Long free = 1; free <= width; ++free)
        if (std::find(totals.begin(), totals.end(), free) == totals.end()) return {free, 1};
    return {};
}

void TotalBlock::PutLegend(GridRow& row, TextView group) const {
    const TableOptions& options = frame_.options;
    std::vector<Long> totals;
    for (const Totals::Column& column : columns_) totals.push_back(column.grid);
    const LegendPlace place = PlaceOfLegend(options, totals, row.Width());
    GridCell* const found = row.Find(place.column);
    if (!found) return;
    GridCell& cell = *found;
    cell.text = options.PageTableAddLeft;
    if (options.PageTableTotalBold) cell.text += "<B>";
    if (options.PageTableTotalItalic) cell.text += "<I>";
    cell.text += legend_;
    if (options.PageTableTotalGroup && !group.empty()) cell.text.append(": ").append(group);
    if (options.PageTableTotalItalic) cell.text += "</I>";
    if (options.PageTableTotalBold) cell.text += "</B>";
    cell.text += options.PageTableAddRight;
    if (options.PageTableTotalGroup && !colour_.empty()) html::AddHTMLTag(cell.tag, "BGCOLOR", colour_);
    html::AddHTMLTag(cell.tag, "COLSPAN", FromLong(SpanOf(options, place.columns)));
}

} // namespace ostrel::tablepages

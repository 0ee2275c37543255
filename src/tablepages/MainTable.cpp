#include "tablepages/MainTable.h"

namespace ostrel::tablepages {

MainTable::MainTable(const ReportFrame& frame, const Totals& totals, bool reversed)
    : grid(frame, reversed, frame.options.PageTableTotalBreak && !reversed), frame_(frame),
      breakBlock_(frame, totals, TotalKind::Break), above_(breakBlock_.Above()), below_(breakBlock_.Below()) {
}

void MainTable::AddBreak(std::vector<Text> texts, Long source) {
    const auto block = static_cast<Long>(breaks_.size());
    breaks_.push_back({std::move(texts), frame_.options.PageTableTotalGroup ? BreakName(source) : Text()});
    const auto rows = static_cast<Long>(above_.size() + 1 + below_.size());
    for (Long row = 0; row < rows; ++row) grid.AddTotalRow(block, row);
}

/// What is not shown is not named either.
Text MainTable::BreakName(Long source) const {
    Text name;
    for (const Long column : frame_.columns.shown) {
        if (!frame_.options.PageTableColumnBreak.Get(column)) continue;
        const TextView value = frame_.input.cells.Html(source, column);
        if (!value.empty()) name.append(name.empty() ? "" : ", ").append(value);
    }
    return name;
}

GridRow MainTable::RowAt(Long place) const {
    if (place < 0) return top[static_cast<std::size_t>(static_cast<Long>(top.size()) + place)];
    const auto row = static_cast<std::size_t>(grid.At(place).count);
    if (row < above_.size()) return above_[row];
    if (row > above_.size()) return below_[row - above_.size() - 1];
    const Text recordTag(grid.RecordTag(place, grid.SourceBefore(place)));
    const Break& group = breaks_[static_cast<std::size_t>(grid.BlockAt(place))];
    return breakBlock_.Row(group.texts, &recordTag, group.name);
}

} // namespace ostrel::tablepages

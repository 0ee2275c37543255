#include "tablepages/ColumnPlan.h"

#include <algorithm>

namespace ostrel::tablepages {

namespace {

/// Marks the columns that are filled in some row; ends as soon as all are.
std::vector<bool> FilledColumns(const TableInput& input, const CellRules& rules) {
    std::vector<bool> filled(static_cast<std::size_t>(input.columns) + 1);
    std::vector<Long> open;
    for (Long column = 1; column <= input.columns; ++column) open.push_back(column);
    for (Long row = 1; row <= input.rows && !open.empty(); ++row)
        std::erase_if(open, [&](Long column) {
            if (rules.Blank(input.cells.Html(row, column))) return false;
            return static_cast<bool>(filled[static_cast<std::size_t>(column)] = true);
        });
    return filled;
}

} // namespace

bool ColumnPlan::Settle(const TableInput& input, const TableOptions& options, const CellRules& rules) {
    recordNumbers = options.PageTableRecordNumber;
    header = false;
    for (Long column = 1; column <= std::min(input.columns, input.names.Count()) && !header; ++column)
        header = !input.names.Find(column)->empty();

    if (options.PageTableIgnoreBlankColumns)
        shows_ = FilledColumns(input, rules);
    else
        shows_.assign(static_cast<std::size_t>(input.columns) + 1, true);
    shows_[0] = recordNumbers;
    linkColumns = static_cast<Long>(std::count(shows_.begin(), shows_.end(), true));
    if (linkColumns - (recordNumbers ? 1 : 0) <= 0) return false;

    shown.clear();
    for (Long column = 0; column <= input.columns; ++column) {
        if (options.PageTableColumnHide.Get(column)) shows_[static_cast<std::size_t>(column)] = false;
        if (Shows(column)) shown.push_back(column);
    }
    return true;
}

} // namespace ostrel::tablepages

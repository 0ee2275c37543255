#pragma once

#include <vector>

#include "tablepages/CellRules.h"
#include "tablepages/TableScope.h"

namespace ostrel::tablepages {

/// Which source columns a table shows, and where. A grid column is a position among the shown columns;
/// source column 0 stands for the record number.
struct ColumnPlan {
    /// Source columns in grid order.
    std::vector<Long> shown;
    /// The count before hidden columns are taken off, which the spans of link rows go by.
    Long linkColumns = 0;
    /// Whether any column's name is filled, so that there is a header at all.
    bool header = false;
    bool recordNumbers = false;

    /// Columns of the finished table.
    Long Width() const { return static_cast<Long>(shown.size()); }
    /// Whether this source column is shown; false outside the table.
    bool Shows(Long source) const {
        return source >= 0 && static_cast<std::size_t>(source) < shows_.size() &&
               shows_[static_cast<std::size_t>(source)];
    }

    /// False where every column is blank and blank columns are left out.
    bool Settle(const TableInput& input, const TableOptions& options, const CellRules& rules);

private:
    std::vector<bool> shows_;
};

} // namespace ostrel::tablepages

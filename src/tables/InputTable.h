#pragma once

#include <string>
#include <vector>

#include "tables/CellStore.h"
#include "tables/ColumnTypes.h"

namespace ostrel::tables {

/// The options of a report for single columns end at this column; those behind it are shown and have no
/// pages.
inline constexpr Long ColumnReach = 100;

/// A table as it came in: names, cells, and what the columns hold.
struct InputTable {
    explicit InputTable(Markup markup) : cells(markup) {}

    std::string place;          ///< location of the names, for messages
    std::vector<Text> names;    ///< plain
    std::vector<Text> nameHtml; ///< the same as a browser shows them
    std::vector<ColumnType> types;
    CellStore cells; ///< row by row
    Long rows = 0;

    Long Columns() const { return static_cast<Long>(names.size()); }
};

} // namespace ostrel::tables

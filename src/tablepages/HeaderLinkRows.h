#pragma once

#include "tablepages/GridRow.h"
#include "tablepages/TableScope.h"

namespace ostrel::tablepages {

/// Where a block of link rows stands.
struct HeaderLinkPlace {
    Long position = 1;       ///< 1 above the top header, 2 below it, 3 above the repeated header, 4 below it
    Long columns = 0;        ///< the columns that the rows span
    TextView csvPath;        ///< what a link "excel" leads to
    bool navigation = false; ///< whether "first", "next" and the like lead to record pages
};

/// Adds the link rows of one position.
void AddHeaderLinkRows(GridRows& rows, const TableScope& scope, const HeaderLinkPlace& place);

} // namespace ostrel::tablepages

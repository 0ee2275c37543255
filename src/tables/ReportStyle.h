#pragma once

#include "tables/ColumnWidths.h"

namespace ostrel::tables {

/// The colour of every second row.
inline constexpr const char* StripeColour = "#F5F7FA";

/// What of the look of pages can be chosen, as words of style sheets.
struct StyleChoice {
    Text font, headerColour, linkColour;
    bool striped = true;
};

/// Rows that a page lays out together. A multiple of two, so that stripes go on from one group to the next.
Long RowsOfGroup(const TableLayout& layout);

/// The style sheet in the head of every page with the default look: padding, stripes and lines, which
/// would need attributes in every cell.
Text PageStyle(const StyleChoice& choice);

/// The same for pages of a whole table. On the screen of a browser that can skip what is not on view, each
/// group of rows is a table of its own with columns of fixed widths; on paper, and in other browsers, it is a
/// plain table.
Text TableStyle(const StyleChoice& choice, const TableLayout& layout);

} // namespace ostrel::tables

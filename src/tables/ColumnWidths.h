#pragma once

#include <vector>

#include "control/OstrelWebHelp.h"
#include "tables/InputTable.h"

namespace ostrel::tables {

/// How the columns of a page are laid out without looking at its cells: each has a fixed width, so that a
/// browser can skip the rows that are not visible.
struct TableLayout {
    /// Widths of the text, in widths of a digit.
    struct Column {
        double wanted = 0; ///< where the window has room
        double least = 0;  ///< in a narrow window
        Text given;        ///< the width set by the user, in CSS; may be empty

        bool Narrows() const { return given.empty() && least < wanted; }
    };
    /// The columns in the order of the page, the record numbers among them.
    std::vector<Column> columns;
    /// The cell of a row of totals that covers several columns: the first one, from 1, and how many. 0 for
    /// none.
    Long legendColumn = 0, legendColumns = 0;
    /// Lines of text in a row, on average.
    double lines = 1;
};

/// Works out widths at which most cells take one line, from a sample of the rows. A width that the host has
/// set for a column wins. `web` holds all options of the report. Has no columns if the widths cannot be
/// determined: a table with spaces between its columns, or cells of HTML that hold pictures, tables and the
/// like.
TableLayout LayOutTable(const InputTable& table, const OstrelWebHelp& web);

} // namespace ostrel::tables

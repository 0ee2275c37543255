#pragma once

#include <optional>

#include "tablepages/HeaderRows.h"
#include "tablepages/RecordGrid.h"
#include "tablepages/Totals.h"

namespace ostrel::tablepages {

/// The table of the main page, as far as it is not in the source cells: what stands around the data rows.
/// The sort pages take their rows from it.
class MainTable {
public:
    MainTable(const ReportFrame& frame, const Totals& totals, bool reversed);

    /// The rows in front of the first data row.
    GridRows top;
    /// The header row among them.
    std::optional<std::size_t> headerRow;
    HeaderVariants header, repeatedHeader;
    RecordGrid grid;
    /// The rows behind the last data row.
    GridRows foot;

    /// Adds a block of break totals behind the data row that was added last, which shows row `source`.
    void AddBreak(std::vector<Text> texts, Long source);
    /// The row at a place of the grid that is no data row: that of a total block, or, with a place below 0,
    /// one in front of the first data row.
    GridRow RowAt(Long place) const;
    /// Whether there is such a row at the place.
    bool IsText(Long place) const { return place < 0 || grid.BlockAt(place) >= 0; }

private:
    Text BreakName(Long source) const;

    const ReportFrame& frame_;
    TotalBlock breakBlock_;
    GridRows above_, below_;
    struct Break {
        std::vector<Text> texts;
        Text name; ///< the values that its rows share
    };
    std::vector<Break> breaks_;
};

} // namespace ostrel::tablepages

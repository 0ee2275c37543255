#pragma once

#include <vector>

#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

/// The rows of a table from its first data row to its last, without their cells: which source row each one
/// shows, and how rows form records. Places count from 0. A plain table, one record a row and nothing left
/// out, keeps no list at all.
class RecordGrid {
public:
    struct Row {
        Long source = 0; ///< of a data row; 0 for a row of a total block
        Long sub = 0;    ///< sub-record number; above 1 for a further row of a record
        Long count = 0;  ///< rows of the record that starts here; the row within its block of a total row
    };

    /// `reversed` takes the source rows from the last to the first. `breaks` says that blocks of totals may
    /// stand between the rows.
    RecordGrid(const ReportFrame& frame, bool reversed, bool breaks);

    /// The source row at this step of the walk, counted from 1, or 0 where it is left out.
    Long SourceOf(Long step) const;
    /// Adds the data row of a source row. True where it starts a record.
    bool Add(Long source);
    /// Adds a row of the total block that was begun last.
    void AddTotalRow(Long block, Long rowInBlock);

    Long Count() const { return plain_ ? plainCount_ : static_cast<Long>(rows_.size()); }
    bool Plain() const { return plain_; }
    Row At(Long place) const {
        if (plain_) return {reversed_ ? frame_.input.rows - place : place + 1, 1, 1};
        const Row& row = rows_[static_cast<std::size_t>(place)];
        return row.source > 0 ? row : Row{0, 0, row.count};
    }
    /// The total block that the row at this place belongs to, or -1 for a data row.
    Long BlockAt(Long place) const {
        return plain_ || rows_[static_cast<std::size_t>(place)].source > 0
                   ? -1
                   : -rows_[static_cast<std::size_t>(place)].source;
    }

    /// The first break column whose value changes behind this source row, or 0.
    Long BreakColumn(Long source) const;
    /// Whether the totals break at all.
    bool Breaks() const { return !breakColumns_.empty(); }
    /// The tags that the record number's cell takes on at this place, from those of the cells of `source`:
    /// they are those at the column where the totals broke off behind the row before.
    TextView RecordTag(Long place, Long source) const;
    /// The source row of the last data row in front of this place, or 0.
    Long SourceBefore(Long place) const;

private:
    bool Shown(Long source) const;

    const ReportFrame& frame_;
    bool reversed_;
    bool plain_;
    Long plainCount_ = 0;
    std::vector<Long> breakColumns_;
    std::vector<Row> rows_;
};

} // namespace ostrel::tablepages

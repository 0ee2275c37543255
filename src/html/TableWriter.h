#pragma once

#include <algorithm>
#include <span>
#include <vector>

#include "html/TableBuilder.h"
#include "html/TagTable.h"
#include "text/LargeBuffer.h"

namespace ostrel::html {

/// One cell on its way into a table. The text may come in up to three pieces that stand one behind the other,
/// so that edges and markup around a value need no joined copy. The views need only live until the row is
/// written.
struct CellView {
    TextView before, value, after;
    const TagInfo* tags = nullptr; ///< null for none

    std::size_t Size() const { return before.size() + value.size() + after.size(); }
    bool Empty() const { return Size() == 0; }
};

/// Writes the HTML of a table row by row, just as `CreateTable` makes it: empty cells merge into blank runs,
/// and the first appearance of a column or of a spacer carries content. The start of the table is written at
/// construction; `End` closes it. After every 50th row it gives way.
///
///     TableWriter table(context, output, columns, look);
///     for (...) table.Row(cells);
///     table.End();
class TableWriter {
public:
    TableWriter(const Context& context, LargeBuffer& output, Long columns, const TableLook& look);

    /// From here on rows stand in groups (TBODY) of so many, so that a style sheet can lay out one group at a
    /// time; 0 for none, as at the start. A row behind the last one of a group begins the next.
    void GroupRows(Long rows) { groupRows_ = rows; }
    /// From here on each blank cell of a row has an element of its own, so that the place of a cell in its
    /// row is that of its column.
    void KeepBlankCells(bool keep) { keepBlankCells_ = keep; }
    /// The rows up to `EndHeader` are a group of their own: THEAD where they are the first rows of the table,
    /// else TBODY of the class "header". Nothing where rows are not grouped.
    void BeginHeader();
    void EndHeader() { EndGroup(); }

    /// Writes one row; cells that are missing at its end are empty.
    void Row(std::span<const CellView> cells);
    void End();

private:
    void ValueRow(std::span<const CellView> cells);
    void EmptyRow();
    void TagRow(std::span<const CellView> cells);

    void BeginGroup(TextView start, TextView end);
    void EndGroup();

    void ValueCell(const CellView& cell);
    bool HasFont(const CellView& cell) const;
    void FlushBlanks(Long& blanks);
    /// The number of blank cells from that column on, with the spacers between them.
    Long BlanksFrom(std::size_t column) const;
    std::size_t SpanOf(const TagInfo* tags) const;
    Text InFont(TextView cell) const;

    const Context& context_;
    LargeBuffer& output_;
    std::size_t columns_;
    bool spaceColumns_;
    Text font_;
    Text rowStart_;
    Text spacerContent_; // what stands behind `<TD ...>` at the first appearance of a spacer, with its end
    Text blankContent_;  // the same of a column
    Text emptyRow_;      // the one cell of a row that is wholly empty
    std::vector<unsigned char> columnUsed_, spacerUsed_;
    std::size_t usedFrom_; // from here on every column and spacer has been used
    int rowsToYield_;
    Long groupRows_ = 0;
    Long rowsInGroup_ = 0;
    TextView groupEnd_; // empty where no group is open
    bool anyRow_ = false;
    bool keepBlankCells_ = false;
};

} // namespace ostrel::html

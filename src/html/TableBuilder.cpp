#include "html/TableBuilder.h"

#include <algorithm>

#include "html/Elements.h"
#include "html/RepeatBound.h"
#include "html/TableWriter.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

// Attributes that differ from cell to cell need not be kept for the whole table.
constexpr std::size_t MostTagsKept = 4096;

TextView ViewOf(const Text* text) { return text ? TextView(*text) : TextView(); }

std::size_t SizeOfBlank(const TableLook& look, const Text& content, Long spaces) {
    return CreateTableCell({}, look.font, content.empty() ? CreateSpaces(spaces) : content).size();
}

/// What a column without content adds to a table. It shows in the first row; later it only lengthens a run.
std::size_t SizeOfBlankColumn(const TableLook& look) {
    return SizeOfBlank(look, look.emptyCellHTML, 1) +
           (look.spaceColumns ? SizeOfBlank(look, look.spaceCellHTML, 2) : 0);
}

/// The most that a row without content adds to a table.
std::size_t SizeOfBlankRow(const TableLook& look) {
    constexpr TextView frame = "<TD COLSPAN = \"2147483647\">\r\n</TR>\r\n\r\n";
    return CreateTableRowStart(look.rowTags).size() + SizeOfBlank(look, look.emptyCellHTML, 1) + frame.size();
}

} // namespace

Text CreateTableCell(TextView tags, TextView font, TextView cell) {
    const bool inFont =
        !cell.empty() && !font.empty() && !(StartsWithText(cell, font) && EndsWithText(cell, "</FONT>"));
    Text result = CreateTableCellStart(tags);
    result.reserve(result.size() + font.size() + cell.size() + 12);
    if (inFont) result.append(font);
    result.append(cell);
    if (inFont) result.append("</FONT>");
    return result.append("</TD>");
}

void CreateTableAddBlanks(Text& row, Long& blanks) {
    if (blanks == 0) return;
    if (blanks == 1) {
        row.append("<TD></TD>");
    } else if (blanks == 2) {
        row.append("<TD></TD><TD></TD>");
    } else {
        row.append("<TD COLSPAN=\"");
        AppendLong(row, blanks);
        row.append("\"></TD>");
    }
    row.append(LineEnd);
    blanks = 0;
}

Text CreateTable(Context& context, Long rows, Long columns, const Grid<Text>& cells, const Grid<Text>& tags,
                 const TableLook& look) {
    if (rows == 0 || columns == 0) return {};
    const Long gridRows = std::max(cells.Rows(), tags.Rows());
    const Long gridColumns = std::max(cells.Columns(), tags.Columns());
    rows = BoundedCount(rows, gridRows, SizeOfBlankRow(look));
    columns = BoundedCount(columns, gridColumns, SizeOfBlankColumn(look));
    LargeBuffer output;
    TableWriter table(context, output, columns, look);
    TagTable distinct;
    // What lies outside the grids is empty, and the writer takes missing cells for that.
    std::vector<CellView> row(static_cast<std::size_t>(std::clamp(columns, Long{0}, gridColumns)));
    for (Long r = 1; r <= rows; ++r) {
        if (r > gridRows) {
            table.Row({});
            continue;
        }
        if (distinct.Size() > MostTagsKept) distinct.Clear();
        for (Long c = 1; c <= static_cast<Long>(row.size()); ++c) {
            CellView& cell = row[static_cast<std::size_t>(c - 1)];
            cell.value = ViewOf(cells.Find(r, c));
            cell.tags = distinct.Intern(ViewOf(tags.Find(r, c)));
        }
        table.Row(row);
    }
    table.End();
    return Text(output.View());
}

} // namespace ostrel::html

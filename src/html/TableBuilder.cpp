#include "html/TableBuilder.h"

#include "html/Elements.h"
#include "html/TableWriter.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

// Counts far beyond the arrays would only fill memory with blank rows.
constexpr long long MostCellsOutside = 10'000'000;
// Attributes that differ from cell to cell need not be kept for the whole table.
constexpr std::size_t MostTagsKept = 4096;

TextView ViewOf(const Text* text) { return text ? TextView(*text) : TextView(); }

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
    const Long gridRows = std::max(cells.Rows(), tags.Rows());
    const Long gridColumns = std::max(cells.Columns(), tags.Columns());
    if (static_cast<long long>(rows) * columns > MostCellsOutside) {
        rows = std::min(rows, gridRows);
        columns = std::min(columns, gridColumns);
    }
    if (rows == 0 || columns == 0) return {};
    LargeBuffer output;
    TableWriter table(context, output, columns, look);
    TagTable distinct;
    std::vector<CellView> row(static_cast<std::size_t>(std::max(columns, Long{0})));
    for (Long r = 1; r <= rows; ++r) {
        if (distinct.Size() > MostTagsKept) distinct.Clear();
        for (Long c = 1; c <= columns; ++c) {
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

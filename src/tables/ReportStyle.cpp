#include "tables/ReportStyle.h"

#include <algorithm>

#include "text/NumberText.h"

namespace ostrel::tables {

namespace {

constexpr double CellPadding = 1.6; ///< left and right together, in em, as the rule of the cells states it
constexpr Long MostRowsOfGroup = 100, FewestRowsOfGroup = 10;
constexpr Long CellsOfGroup = 1200;

Text BasicRules(const StyleChoice& choice) {
    const Text header = "td[bgcolor=\"" + choice.headerColour + "\"]";
    Text style;
    style += "body { margin: 2em; color: #1F2933; font: 14px/1.45 " + choice.font + "; }\r\n";
    style += "p { margin: 0.4em 0; }\r\n";
    style += "table { margin: 1.2em 0; font: inherit; font-variant-numeric: tabular-nums; "
             "border-collapse: separate; }\r\n";
    style += "td { padding: 0.3em 0.8em; vertical-align: top; border-bottom: 1px solid #E1E6EC; }\r\n";
    style += header + " { vertical-align: bottom; border-bottom: 1px solid #A9B6C6; }\r\n";
    // Paper has no place that a header could stick to. The link of a header takes the clicks of its whole
    // cell.
    style += "@media screen {\r\n" + header + " { position: sticky; top: 0; z-index: 1; }\r\n" + header +
             " a[href]::after { content: \"\"; position: absolute; inset: 0; }\r\n}\r\n";
    if (choice.striped)
        style += Text("tr:nth-child(even) td:not([bgcolor]) { background: ") + StripeColour + "; }\r\n";
    style += "tr:hover td:not([bgcolor]) { background: #E9F1FB; }\r\n";
    style += "td[align=right] { white-space: nowrap; }\r\n";
    style += "a[href] { color: " + choice.linkColour + "; text-decoration: none; }\r\n";
    style += "a[href]:hover { text-decoration: underline; }\r\n";
    return style;
}

/// The line in the titles of sorted pages that names their order.
Text OrderRules() {
    Text style;
    style += ".dash { display: none; }\r\n";
    style += ".order { display: block; font-size: 14px; font-weight: normal; color: #52606D; }\r\n";
    return style;
}

/// Uses a decimal point whatever the process's locale.
Text Decimal(double number) { return FormatNumber(number, "0.0"); }

Text Digits(double count) { return Decimal(count) + "ch"; }

Text Ems(double count) { return Decimal(count) + "em"; }

/// The width of a column's text. Columns that can be narrowed share the room of the window.
Text WidthOf(const TableLayout::Column& column, double shared) {
    if (!column.given.empty()) return column.given;
    if (!column.Narrows()) return Digits(column.wanted);
    return "clamp(" + Digits(column.least) + ", var(--room) * " +
           FormatNumber(column.wanted / shared, "0.000") + ", " + Digits(column.wanted) + ")";
}

Text Name(Long column) { return "var(--c" + FromLong(column) + ")"; }

/// Names the widths of the columns, so that sums can be made of them: `--c1` and on.
Text ColumnVariables(const TableLayout& layout) {
    double shared = 0, kept = 0;
    Text given;
    for (const TableLayout::Column& column : layout.columns) {
        if (!column.given.empty())
            given += " - " + column.given;
        else
            (column.Narrows() ? shared : kept) += column.wanted;
    }
    const auto count = static_cast<double>(layout.columns.size());
    // The margins of the page, the scroll bar, and the padding of the cells are no room for text.
    Text style =
        "table { --room: (100vw - " + Ems(6 + CellPadding * count) + " - " + Digits(kept) + given + ");";
    Long number = 0;
    for (const TableLayout::Column& column : layout.columns)
        style += " --c" + FromLong(++number) + ": " + WidthOf(column, shared) + ";";
    return style + " }\r\n";
}

/// The width of some columns together, from 1, as the inside of `calc`.
Text WidthOf(Long first, Long count) {
    Text sum;
    for (Long column = first; column < first + count; ++column) sum += Name(column) + " + ";
    return sum + Ems(CellPadding * count);
}

Text Cell(Long place) { return "td:nth-child(" + FromLong(place) + ")"; }

/// The widths of a row of totals, where the cell of the legend moves those behind it.
Text LegendRules(const TableLayout& layout) {
    if (layout.legendColumn <= 0 || layout.legendColumns < 2) return {};
    const Long columns = static_cast<Long>(layout.columns.size());
    const Text legend = "td[colspan=\"" + FromLong(layout.legendColumns) + "\"]" +
                        Cell(layout.legendColumn).substr(2) + ":not(:only-child)";
    Text style = legend + " { width: calc(" + WidthOf(layout.legendColumn, layout.legendColumns) + "); }\r\n";
    for (Long column = layout.legendColumn + layout.legendColumns; column <= columns; ++column)
        style += legend + " ~ " + Cell(column - layout.legendColumns + 1) + " { width: calc(" +
                 WidthOf(column, 1) + "); }\r\n";
    return style;
}

/// A row's height in lines, and the line below it.
Text HeightOfGroup(const TableLayout& layout) {
    const Long rows = RowsOfGroup(layout);
    return "calc(" + Ems(rows * (1.45 * layout.lines + 0.6)) + " + " + FromLong(rows) + "px)";
}

Text SkippingRules(const TableLayout& layout) {
    const Long columns = static_cast<Long>(layout.columns.size());
    const Text whole = WidthOf(1, columns);
    Text style = "@supports (content-visibility: auto) { @media screen {\r\n";
    // A pixel for what is lost in rounding the columns.
    style += ColumnVariables(layout);
    style += "table, thead, tbody { display: block; width: calc(" + whole + " + 1px); }\r\n";
    style +=
        "tbody { content-visibility: auto; contain-intrinsic-size: auto " + HeightOfGroup(layout) + "; }\r\n";
    style += "thead, tbody.header { position: sticky; top: 0; z-index: 1; content-visibility: visible; }\r\n";
    style +=
        "td, td[align=right] { box-sizing: border-box; overflow-wrap: anywhere; white-space: normal; }\r\n";
    // Links cover their cell, which no longer sticks by itself.
    style += "td[bgcolor] { position: relative; }\r\n";
    for (Long column = 1; column <= columns; ++column)
        style += Cell(column) + " { width: calc(" + WidthOf(column, 1) + "); }\r\n";
    style += "td:only-child { width: calc(" + whole + "); }\r\n";
    style += LegendRules(layout);
    // A link that leads to a record marks it, and the header must not hide it.
    style += "tr { position: relative; }\r\n";
    style += "td a[name] { scroll-margin-top: 8em; }\r\n";
    style += "td a:target::before { content: \"\"; position: absolute; inset: 0; pointer-events: none; "
             "background: rgba(255, 193, 7, 0.28); }\r\n";
    style += "} }\r\n";
    return style;
}

/// Paper has an end at the right: wide tables take a smaller font.
Text PrintRules(const TableLayout& layout) {
    constexpr double paper = 90, normal = 14, smallest = 6;
    double digits = 0;
    for (const TableLayout::Column& column : layout.columns) digits += column.wanted + CellPadding * 2;
    const double size = std::clamp(normal * paper / std::max(digits, 1.0), smallest, normal);
    // Where even that is not enough, words are broken before columns are lost.
    return "@media print { table { font-size: " + Decimal(size) + "px; }" +
           (size > smallest ? "" : " td { overflow-wrap: anywhere; }") + " }\r\n";
}

Text InHead(const Text& rules) {
    return "<META NAME=\"viewport\" CONTENT=\"width=device-width\">\r\n<STYLE>\r\n" + rules + "</STYLE>";
}

} // namespace

Long RowsOfGroup(const TableLayout& layout) {
    const auto columns = static_cast<Long>(std::max<std::size_t>(layout.columns.size(), 1));
    return std::clamp(CellsOfGroup / columns, FewestRowsOfGroup, MostRowsOfGroup) / 2 * 2;
}

Text PageStyle(const StyleChoice& choice) { return InHead(BasicRules(choice)); }

Text TableStyle(const StyleChoice& choice, const TableLayout& layout) {
    return InHead(BasicRules(choice) + OrderRules() +
                  (layout.columns.empty() ? Text() : SkippingRules(layout) + PrintRules(layout)));
}

} // namespace ostrel::tables

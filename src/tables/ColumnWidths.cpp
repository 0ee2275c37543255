#include "tables/ColumnWidths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "tablepages/ColumnPlan.h"
#include "tablepages/Totals.h"
#include "tables/TextWidth.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tables {

namespace {

constexpr Long MostSampledRows = 2000, FewestSampledRows = 20;
constexpr Long MostSampledCells = 400'000;
constexpr std::size_t LongestSampledCell = 2000;
/// Of the cells of a column, this part shall take one line.
constexpr double OneLinePart = 0.95;
/// Columns up to this width are never narrowed, and none is wider than the latter.
constexpr double Modest = 32, Widest = 60;
/// Texts up to this width take one line even in a narrow window.
constexpr double Narrow = 12;
/// The width to which a table is fitted by narrowing wide columns, including the space between columns.
constexpr double PageWidth = 150, Padding = 3;
/// Bold text is wider than plain text, and fonts differ.
constexpr double BoldFactor = 1.2, FontFactor = 1.05;
constexpr double MarkWidth = 2.2;

/// The options that decide which columns a page has.
TableOptions ShapeOf(const OstrelWebHelp& web) {
    TableOptions options;
    options.PageTableRecordNumber = web.PageTableRecordNumber();
    options.PageTableIgnoreBlankColumns = web.PageTableIgnoreBlankColumns();
    options.PageTableZeroBlank = web.PageTableZeroBlank();
    options.PageTableTotalColumn = web.PageTableTotalColumn();
    options.PageTableTotalGroup = web.PageTableTotalGroup();
    for (Long column = 1; column <= ColumnReach; ++column) {
        options.PageTableColumnHide.Put(column, web.PageTableColumnHide(column));
        options.PageTableColumnTotal.Put(column, web.PageTableColumnTotal(column) ||
                                                     web.PageTableColumnTotalTime(column));
    }
    return options;
}

tablepages::ColumnPlan ColumnsOf(const InputTable& table, const TableOptions& options,
                                 const OstrelWebHelp& web) {
    const Array<Text> names{std::vector<Text>(table.nameHtml)};
    const Array<Flag> right;
    const Text none;
    const CellTable cells(table.cells.Cells(), table.rows, table.Columns());
    const tablepages::TableInput input{none, none, table.rows, table.Columns(), names, right, cells, {}};
    const Text delimiter = web.DecimalDelimiter();
    tablepages::ColumnPlan plan;
    if (!plan.Settle(input, options, tablepages::CellRules(options, delimiter))) plan.shown.clear();
    return plan;
}

/// Measures the cells of a table, a sample of its rows.
class Sample {
public:
    Sample(const InputTable& table, std::size_t columns)
        : table_(table), rows_(std::min(table.rows, Rows(columns))) {}

    Long Count() const { return rows_; }
    /// The beginning of a cell's HTML; what is longer is wider than any column.
    TextView Html(Long sampled, Long column) const {
        return Cell(sampled, column).Html().substr(0, LongestSampledCell);
    }
    const PackedCell& Cell(Long sampled, Long column) const {
        const auto row = static_cast<std::size_t>(static_cast<long long>(sampled) * table_.rows / rows_);
        return table_.cells.Cells()[row * table_.names.size() + static_cast<std::size_t>(column - 1)];
    }

private:
    static Long Rows(std::size_t columns) {
        return std::clamp(MostSampledCells / static_cast<Long>(std::max<std::size_t>(columns, 1)),
                          FewestSampledRows, MostSampledRows);
    }

    const InputTable& table_;
    Long rows_;
};

/// The lengths of the longest plain values, per column.
std::vector<std::size_t> LongestValues(const InputTable& table) {
    std::vector<std::size_t> longest(table.names.size());
    const PackedCell* cell = table.cells.Cells();
    for (Long row = 0; row < table.rows; ++row)
        for (std::size_t& most : longest) most = std::max(most, (cell++)->Plain().size());
    return longest;
}

/// How wide the text of a column is.
struct Width {
    double wanted = 0; ///< at which most cells take one line
    double least = 0;  ///< which the column keeps in a narrow window
};

/// A width that holds every value: numbers, dates and times are never broken.
Width WidthOfAll(const Sample& sample, Long column, std::size_t longestValue) {
    double widest = 0;
    std::size_t longest = 0;
    for (Long i = 0; i < sample.Count(); ++i) {
        const PackedCell& cell = sample.Cell(i, column);
        widest = std::max(widest, MeasureHtml(sample.Html(i, column)).line);
        longest = std::max(longest, cell.Plain().size());
    }
    widest += static_cast<double>(std::max(longestValue, longest) - longest);
    return {widest, widest};
}

Width WidthOfMost(const Sample& sample, Long column) {
    std::vector<double> lines, words;
    for (Long i = 0; i < sample.Count(); ++i) {
        const TextWidth width = MeasureHtml(sample.Html(i, column));
        lines.push_back(width.line);
        words.push_back(width.word);
    }
    if (lines.empty()) return {};
    std::sort(lines.begin(), lines.end());
    std::sort(words.begin(), words.end());
    const auto most = static_cast<std::size_t>(OneLinePart * static_cast<double>(lines.size() - 1));
    // A little more room lets all of them take one line.
    const double line = lines.back() <= 1.5 * lines[most] ? lines.back() : lines[most];
    const double wanted = std::max(line, std::min(words.back(), Modest));
    return {wanted, std::max(std::min(words[most], Modest), std::min(wanted, Narrow))};
}

/// A heading may take two lines, at its blanks.
double WidthOfHeader(TextView html, bool sorted) {
    const TextWidth width = MeasureHtml(html);
    return BoldFactor * std::max(width.word, width.line / 2) + (sorted ? MarkWidth : 0);
}

Width WidthOfColumn(const InputTable& table, const Sample& sample, const OstrelWebHelp& web, Long column,
                    std::size_t longestValue) {
    const auto place = static_cast<std::size_t>(column - 1);
    const bool text = table.types[place] == ColumnType::Text;
    Width width = text ? WidthOfMost(sample, column) : WidthOfAll(sample, column, longestValue);
    // A sum has more digits than what it sums up.
    if (web.PageTableColumnTotal(column) || web.PageTableColumnTotalTime(column)) {
        width.wanted += std::ceil(std::log10(static_cast<double>(table.rows) + 1)) + 1;
        width.least = width.wanted *= BoldFactor;
    }
    const double header = WidthOfHeader(table.nameHtml[place], web.PageTableColumnSort(column));
    const auto whole = [&](double inside) {
        return std::min(std::max(inside * (text ? FontFactor : 1) + 0.5, header), Widest);
    };
    return {whole(width.wanted), whole(width.least)};
}

/// Narrows what is wide so that the whole fits a page, if it can.
void Fit(std::vector<Width>& widths) {
    const auto total = [&](double limit) {
        double sum = 0;
        for (const Width& width : widths) sum += std::min(width.wanted, limit) + Padding;
        return sum;
    };
    double limit = Widest;
    while (limit > Modest && total(limit) > PageWidth) limit -= 1;
    for (Width& width : widths) {
        width.wanted = std::min(width.wanted, std::max(limit, Modest));
        width.least = std::min(width.least, width.wanted);
    }
}

/// Returns a width set for a column in CSS, or an empty text if CSS has no such unit.
Text GivenWidth(const Text& width) {
    const Text plain(TrimBlanks(width));
    const bool percent = plain.ends_with('%');
    const Text digits = percent ? plain.substr(0, plain.size() - 1) : plain;
    const auto number = ToDouble(digits);
    if (!number || !(*number > 0) || *number > 10'000) return {};
    // Of the window's width, as far as the margins leave it.
    return percent ? "(100vw - 4em) * " + FromDouble(*number / 100) : FromDouble(*number) + "px";
}

/// How many lines the rows of the sample take at these widths.
double LinesOfRows(const Sample& sample, const std::vector<Long>& shown, const std::vector<Width>& widths) {
    double lines = 0;
    for (Long i = 0; i < sample.Count(); ++i) {
        double most = 1;
        for (std::size_t place = 0; place < shown.size(); ++place)
            if (shown[place] > 0 && widths[place].wanted > 0)
                most = std::max(
                    most, std::ceil(MeasureHtml(sample.Html(i, shown[place])).line / widths[place].wanted));
        lines += most;
    }
    return sample.Count() > 0 ? lines / sample.Count() : 1;
}

/// Whether an element flows with the text around it, so that it never needs more room than its cell has.
bool IsInline(TextView tag) {
    constexpr std::array<TextView, 20> names{"A",     "ABBR",   "B",   "BIG",  "BR", "CODE", "DEL",
                                             "EM",    "FONT",   "I",   "MARK", "Q",  "S",    "SPAN",
                                             "SMALL", "STRONG", "SUB", "SUP",  "TT", "U"};
    if (tag.starts_with('/')) tag.remove_prefix(1);
    const TextView name = tag.substr(0, std::min(tag.find_first_of(" /\t\r\n"), tag.size()));
    // A style can make a box of anything.
    return FindText(tag, "STYLE") == NotFound &&
           std::any_of(names.begin(), names.end(), [&](TextView known) { return EqualText(known, name); });
}

/// Whether any cell holds a picture, a table or the like, whose width is unknown before layout.
bool HoldsBoxes(const InputTable& table) {
    const std::span cells(table.cells.Cells(), table.cells.Count());
    return std::any_of(cells.begin(), cells.end(), [](const PackedCell& cell) {
        const TextView html = cell.Html();
        for (std::size_t at = html.find('<'); at != NotFound; at = html.find('<', at)) {
            const std::size_t end = html.find('>', at);
            if (end == NotFound || !IsInline(html.substr(at + 1, end - at - 1))) return true;
            at = end;
        }
        return false;
    });
}

} // namespace

TableLayout LayOutTable(const InputTable& table, const OstrelWebHelp& web) {
    TableLayout layout;
    const TableOptions options = ShapeOf(web);
    const std::vector<Long> shown = ColumnsOf(table, options, web).shown;
    const Sample sample(table, shown.size());
    if (web.PageTableSpace() || shown.empty() || (table.cells.Kind() == Markup::Html && HoldsBoxes(table)))
        return layout;

    const std::vector<std::size_t> longest = LongestValues(table);
    std::vector<Width> widths;
    std::vector<Long> totals;
    for (const Long column : shown) {
        if (column == 0) {
            const double number = std::max<double>(static_cast<double>(FromLong(table.rows).size()) + 2, 5);
            widths.push_back({number, number});
        } else {
            widths.push_back(
                WidthOfColumn(table, sample, web, column, longest[static_cast<std::size_t>(column - 1)]));
        }
        if (options.PageTableColumnTotal.Get(column)) totals.push_back(static_cast<Long>(widths.size()));
    }
    Fit(widths);
    for (std::size_t place = 0; place < shown.size(); ++place)
        layout.columns.push_back(
            {widths[place].wanted, widths[place].least, GivenWidth(web.PageTableColumnWidth(shown[place]))});
    layout.lines = LinesOfRows(sample, shown, widths);
    const tablepages::LegendPlace legend =
        tablepages::PlaceOfLegend(options, totals, static_cast<Long>(shown.size()));
    layout.legendColumn = legend.column;
    layout.legendColumns = legend.columns;
    return layout;
}

} // namespace ostrel::tables

#pragma once

#include <span>

#include "tablepages/GridRow.h"
#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

enum class TotalKind { Grand, Break, Sort };

/// The running sums of the columns that are shown and summed, as numbers or as times.
class Totals {
public:
    /// A column that is summed.
    struct Column {
        Long source = 0, grid = 0;
        bool time = false;
        Text format;
        Double number = 0, numberBase = 0, numberSort = 0;
        Long seconds = 0, secondsBase = 0, secondsSort = 0;
    };

    /// Takes the columns and their formats from the table; all sums are 0.
    void Settle(const ReportFrame& frame);
    /// The sums, and with `all` also those of the page and the bases of breaks.
    void Clear(bool all);

    /// Whether any column of the table is summed, shown or not.
    bool Any() const { return any_; }
    std::span<const Column> Columns() const { return columns_; }

    /// Adds to the sum of the page, to that since the last sub-total, or to both.
    static void AddNumber(Column& column, Double value, bool page, bool sort);
    static void AddSeconds(Column& column, Long seconds, bool page, bool sort);
    std::span<Column> Columns() { return columns_; }

    /// The texts of one row of totals, one a column, as the host leaves them. A break moves its base.
    std::vector<Text> Show(const ReportFrame& frame, TotalKind kind);

private:
    std::vector<Column> columns_;
    bool any_ = false;
};

/// Where the legend of a row of totals stands.
struct LegendPlace {
    Long column = 0;  ///< in the grid; 0 for no legend
    Long columns = 1; ///< that it covers
};

/// The place of the legend in a table with these columns. `totals` are the totalled columns of the grid, in
/// order. A legend that names groups is found a place wherever one is left.
LegendPlace PlaceOfLegend(const TableOptions& options, std::span<const Long> totals, Long width);

/// A block of a total row with its spacers.
class TotalBlock {
public:
    TotalBlock(const ReportFrame& frame, const Totals& totals, TotalKind kind);

    const Text& Colour() const { return colour_; }
    GridRows Above(TextView topColour = {}) const;
    GridRows Below() const;
    /// `recordTag` is the tag of the record number's cell, null on a sorted page. `group` is the value that
    /// the rows of a sub-total share, as HTML; the legend names it where the options say so.
    GridRow Row(std::span<const Text> texts, const Text* recordTag, TextView group = {}) const;

private:
    void PutLegend(GridRow& row, TextView group) const;

    const ReportFrame& frame_;
    std::span<const Totals::Column> columns_;
    Long above_ = 0, below_ = 0;
    const Text& colour_;
    const Text& legend_;
};

} // namespace ostrel::tablepages

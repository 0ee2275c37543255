#pragma once

#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

/// The texts of data cells: the source value with its link and edges. Views hold until the next call for the
/// same column.
class CellTexts {
public:
    struct Pieces {
        TextView before, value, after;
        bool Empty() const { return before.empty() && value.empty() && after.empty(); }
    };

    explicit CellTexts(const ReportFrame& frame);

    /// The text of a data cell in three pieces, all empty for an empty cell.
    Pieces Data(Long sourceRow, Long sourceColumn);
    /// The text of the record number's cell; empty for a further row of a record.
    Pieces RecordNumber(Long sourceRow, bool numbered);
    /// Joins the pieces.
    static Text Joined(const Pieces& pieces);
    /// The pieces as plain text, good until the next call.
    TextView Plain(const Pieces& pieces);
    /// The value alone where it is the plain text of the whole but for edge blanks; null data otherwise.
    TextView SimpleValue(const Pieces& pieces) const;

    /// Whether a value fills its cell.
    bool Filled(TextView value) const {
        if (value.empty()) return false;
        const char first = value[0];
        return (first != ' ' && first != '0' && first != point_) || !frame_.rules.Blank(value);
    }
    /// What stands in front of and behind the value of every filled cell.
    const Text& Before() const { return before_; }
    const Text& After() const { return after_; }
    bool Linked(Long sourceColumn) const { return linked_[static_cast<std::size_t>(sourceColumn)]; }

    /// Makes the links of a row for the missing files that they tell the host of.
    void TestLinks(Long sourceRow, bool numbered);

private:
    TextView MakeLink(const html::PageScope& scope, Long sourceColumn, TextView value);
    void RecordText(const html::PageScope& scope, Text& text, Long sourceRow);

    const ReportFrame& frame_;
    HelpProperties silentDraft_;
    html::PageScope silent_;
    Text before_, after_;
    bool edgesVanish_;
    char point_;
    std::vector<Text> links_; // by source column, for columns with links alone
    std::vector<bool> linked_;
    std::vector<Text> recordPage_; // the name of a record scope, cut where its number goes
    Text record_, address_, number_, joined_, plain_;
};

} // namespace ostrel::tablepages

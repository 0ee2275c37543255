#pragma once

#include "tablepages/TableOptions.h"
#include "text/Text.h"

namespace ostrel::tablepages {

/// The alignment attributes of a table's cells.
struct AlignTags {
    explicit AlignTags(const TableOptions& options);
    Text bodyVAlign, headerVAlign, bodyAlign, headerAlign;
};

/// How a value becomes the text and the tags of a cell.
class CellRules {
public:
    CellRules(const TableOptions& options, const Text& decimalDelimiter)
        : options_(options), decimalDelimiter_(decimalDelimiter) {}

    struct Placement {
        bool right = false;
        TextView align, vAlign;
        bool addEdges = false;
    };

    /// Whether the cell of this value stays empty: blanks, or a zero that is blanked.
    bool Blank(TextView value) const;
    /// Fills the cell. Tags that are given suppress the alignment; those of an empty cell go, unless they
    /// hold a colour.
    void SetCell(TextView value, Text& cell, Text& tag, const Placement& placement) const;
    /// As `SetCell`, for the tags alone.
    static void SetTag(bool empty, Text& tag, const Placement& placement);

    /// The background of a body cell: its own, that of its column, or that of the pattern. `record` counts
    /// from 1.
    void CellColour(Text& tag, Long record, Long gridColumn, Long sourceColumn) const;
    /// The background of a total cell: its own or that of its column.
    void ColumnColour(Text& tag, Long sourceColumn) const;

    /// What stands in front of and behind a filled cell's value.
    Text Before(bool addEdges) const;
    Text After(bool addEdges) const;

private:
    bool ColouredByColumn(Text& tag, Long sourceColumn) const;

    const TableOptions& options_;
    const Text& decimalDelimiter_;
};

/// Whether a tag text states a background.
inline bool HasColour(TextView tag) { return tag.find("BGCOLOR=") != TextView::npos; }

} // namespace ostrel::tablepages

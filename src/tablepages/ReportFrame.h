#pragma once

#include "tablepages/ColumnPlan.h"

namespace ostrel::tablepages {

/// What all pages of one report are made from.
struct ReportFrame {
    ReportFrame(const TableScope& tableScope, const TableInput& tableInput)
        : scope(tableScope), input(tableInput), rules(scope.options, scope.pages.service.DecimalDelimiter),
          align(scope.options) {}

    const TableScope scope;
    Context& context = scope.pages.context;
    const TableInput& input;
    const TableOptions& options = scope.options;
    CellRules rules;
    AlignTags align;
    ColumnPlan columns;
    Text filePath; ///< of the main page
    Text csvPath;  ///< of the CSV file beside it, empty where there is none
    Text headText; ///< the anchor at the head of each page
    Text footText; ///< the anchor at the foot of each page

    /// The name of a column as the host gave it.
    const Text& Name(Long column) const;
};

/// Raises the stop where the user pressed it: yields, then tells whether the run ends.
bool Interrupted(const ReportFrame& frame, Text& error);

} // namespace ostrel::tablepages

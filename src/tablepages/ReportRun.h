#pragma once

#include "tablepages/MainTable.h"
#include "tablepages/PageTable.h"
#include "tablepages/RecordPainter.h"

namespace ostrel::tablepages {

/// One making of a report, from its checks to its last page. It owns all that the run needs, so that a
/// listener may start another report inside it.
struct ReportRun {
    ReportRun(const TableScope& scope, const TableInput& input) : frame(scope, input) {}

    ReportFrame frame;
    Totals totals;
    PageTable page;
    std::optional<MainTable> main;
    std::optional<RecordPainter> painter;
    /// Whether the sort pages are made though their files exist.
    bool createAll = false;

    const html::PageScope& Scope() const { return frame.scope.page; }
};

/// Makes the page of the whole table: the main page, or with `reversed` the down page, whose rows stand in
/// reverse.
bool MakeMainPage(ReportRun& run, bool reversed, Text& error);

/// Saves the three parts under the path of the current page and tells of it. A False ends the run.
bool SavePage(const ReportRun& run, const Text& path, Text& error);

} // namespace ostrel::tablepages

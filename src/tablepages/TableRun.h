#pragma once

#include "tablepages/MainTable.h"
#include "tablepages/PageTable.h"
#include "tablepages/RecordPainter.h"

namespace ostrel::tablepages {

/// One making of a report, from its checks to its last page. It owns all that the run needs, so that a
/// listener may start another report inside it.
struct TableRun {
    TableRun(const TableScope& scope, const TableInput& input) : frame(scope, input) {}

    ReportFrame frame;
    Totals totals;
    PageTable table;
    std::optional<MainTable> main;
    std::optional<RecordPainter> painter;
    /// Whether the sort pages are made though their files exist.
    bool createAll = false;

    const html::PageScope& Scope() const { return frame.scope.pages; }
};

/// Makes the page of the whole table: the main page, or with `reversed` the down page, whose rows stand in
/// reverse.
bool MakeMainPage(TableRun& run, bool reversed, Text& error);

} // namespace ostrel::tablepages

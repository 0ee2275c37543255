#pragma once

#include "html/PageScope.h"
#include "html/SeparatePage.h"
#include "tablepages/CellTable.h"
#include "tablepages/HeaderLinks.h"
#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// What the report engine reaches beside its input.
struct TableScope {
    html::PageScope pages;
    const TableOptions& options;
    const HeaderLinks& links;
    SeparatePage& separate;
};

/// The table of one report, as the host gives it. It must not change while the report is made.
struct TableInput {
    const Text& filePath; ///< empty to assemble the page without a file
    const Text& title;
    Long rows = 0;
    Long columns = 0;
    const Array<Text>& names;
    const Array<Flag>& right;
    CellTable cells;
    CellTable tags; ///< empty for no tags at all
};

} // namespace ostrel::tablepages

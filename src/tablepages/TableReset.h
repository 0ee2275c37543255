#pragma once

#include "tablepages/HeaderLinks.h"
#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// The table's own part of `PageReset`: every option to its default, no header links, the usual names of the
/// navigation.
void ResetTable(TableOptions& options, HeaderLinks& links);

} // namespace ostrel::tablepages

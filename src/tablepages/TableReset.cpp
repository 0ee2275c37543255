#include "tablepages/TableReset.h"

namespace ostrel::tablepages {

void ResetTable(TableOptions& options, HeaderLinks& links) {
    options.SetDefaults();
    links.Clear();
    links.firstName = "First";
    links.previousName = "Previous";
    links.nextName = "Next";
    links.lastName = "Last";
    links.allName = "All";
}

} // namespace ostrel::tablepages

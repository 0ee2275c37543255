#include "tablepages/TableReset.h"

namespace ostrel::tablepages {

void ResetTable(TableOptions& options, HeaderLinks& links) {
#define PROPERTY(kind, name, fallback, flags, doc) options.name = kind{fallback};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) options.name.Fill(kind{fallback});
#include "tablepages/TableOptions.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
    links.Clear();
    links.firstName = "First";
    links.previousName = "Previous";
    links.nextName = "Next";
    links.lastName = "Last";
    links.allName = "All";
}

} // namespace ostrel::tablepages

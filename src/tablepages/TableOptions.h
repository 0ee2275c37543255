#pragma once

#include "text/Array.h"

namespace ostrel {

/// Options of the table pages.
struct TableOptions {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "tablepages/TableOptions.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
};

} // namespace ostrel

#pragma once

#include "text/Array.h"

namespace ostrel {

/// Options of the help search.
struct SearchProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "help/SearchProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
};

} // namespace ostrel

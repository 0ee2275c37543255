#pragma once

#include "text/Array.h"

namespace ostrel {

/// What the editors keep from call to call.
struct EditProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "editors/EditProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
};

} // namespace ostrel

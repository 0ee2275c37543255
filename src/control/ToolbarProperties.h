#pragma once

#include "text/Array.h"

namespace ostrel {

/// Arrangement of the toolbar.
struct ToolbarProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "control/ToolbarProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
};

} // namespace ostrel

#pragma once

#include "text/Array.h"

namespace ostrel {

/// What all dialogs of one control have in common.
struct DialogProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "ui/DialogProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
};

} // namespace ostrel

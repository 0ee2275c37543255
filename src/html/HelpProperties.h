#pragma once

#include "text/Array.h"
#include "text/Rope.h"

namespace ostrel {

/// The page under construction: its parts, head and look.
struct HelpProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "html/HelpProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
    Rope HelpPart1, HelpPart2, HelpPart3;
    Text HelpRefreshURL;
    /// The refresh target that the head of a page really uses.
    Text HelpRefreshTarget;
};

} // namespace ostrel

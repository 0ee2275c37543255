#pragma once

#include "text/Array.h"
#include "text/Rope.h"

namespace ostrel {

/// What the host wants of its pages; brought into force by PageInitialise.
struct PageProperties {
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include "html/PageProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
    Rope PageBody;
    /// The page being built, as `CurrentCreatePage` tells it.
    Text CurrentCreatePage;
    /// The count that the last `PageCreateProgress` carried.
    Long ProgressRecords = 0;
};

} // namespace ostrel

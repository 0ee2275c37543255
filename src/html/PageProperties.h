#pragma once

#include "text/Array.h"
#include "text/Rope.h"

namespace ostrel {

/// What the host wants of its pages; brought into force by PageInitialise.
struct PageProperties {
#define PROPERTY_ROWS "html/PageProperties.def"
#include "services/PropertyFields.h"
    Rope PageBody;
    /// The page being built, as `CurrentCreatePage` tells it.
    Text CurrentCreatePage;
    /// The count that the last `PageCreateProgress` carried.
    Long ProgressRecords = 0;
};

} // namespace ostrel

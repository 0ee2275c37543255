#pragma once

#include "text/Array.h"

namespace ostrel {

/// Options of transfers.
struct PullProperties {
#define PROPERTY_ROWS "net/PullProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

#pragma once

#include "text/Array.h"

namespace ostrel {

/// Names, directories and work files that the services read.
struct ServiceProperties {
#define PROPERTY_ROWS "services/ServiceProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

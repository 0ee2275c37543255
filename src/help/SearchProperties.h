#pragma once

#include "text/Array.h"

namespace ostrel {

/// Options of the help search.
struct SearchProperties {
#define PROPERTY_ROWS "help/SearchProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

#pragma once

#include "text/Array.h"

namespace ostrel {

/// Properties of the control itself.
struct ControlProperties {
#define PROPERTY_ROWS "control/ControlProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

#pragma once

#include "text/Array.h"

namespace ostrel {

/// Arrangement of the toolbar.
struct ToolbarProperties {
#define PROPERTY_ROWS "control/ToolbarProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

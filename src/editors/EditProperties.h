#pragma once

#include "text/Array.h"

namespace ostrel {

/// What the editors keep from call to call.
struct EditProperties {
#define PROPERTY_ROWS "editors/EditProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

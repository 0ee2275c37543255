#pragma once

#include "text/Array.h"

namespace ostrel {

/// What all dialogs of one control have in common.
struct DialogProperties {
#define PROPERTY_ROWS "ui/DialogProperties.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

#pragma once

#include "text/Array.h"
#include "text/Rope.h"

namespace ostrel {

/// The page under construction: its parts, head and look.
struct HelpProperties {
#define PROPERTY_ROWS "html/HelpProperties.def"
#include "services/PropertyFields.h"
    Rope HelpPart1, HelpPart2, HelpPart3;
    Text HelpRefreshURL;
    /// The refresh target that the head of a page really uses.
    Text HelpRefreshTarget;
};

} // namespace ostrel

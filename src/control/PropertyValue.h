#pragma once

#include <variant>

#include "text/Text.h"

namespace ostrel {

/// The value of a property, by its kind.
using PropertyValue = std::variant<Text, Flag, Long, Picture>;

} // namespace ostrel

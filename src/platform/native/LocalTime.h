#pragma once

#include <ctime>

#include "text/Text.h"

namespace ostrel {

/// The local date and time of a moment, to the second.
Date LocalTime(std::time_t moment);

} // namespace ostrel

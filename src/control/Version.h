#pragma once

#include "text/Text.h"

namespace ostrel {

inline constexpr Long VersionMajor = 0;
inline constexpr Long VersionMinor = 1;
inline constexpr Long VersionRevision = 0;

} // namespace ostrel

#pragma once

#include "text/Text.h"

namespace ostrel {

/// Returns whether the text contains "*" or "?".
bool IsMask(TextView name);

/// Whether `name` matches `mask`, ignoring case: "*" matches any characters, "?" one, and ".*" at the
/// end also for no extension at all.
bool MatchesMask(TextView name, TextView mask);

} // namespace ostrel

#pragma once

#include "text/Text.h"

namespace ostrel {

/// Whether the text holds "*" or "?".
bool IsMask(TextView name);

/// Whether `name` matches `mask`, ignoring case: "*" stands for any characters, "?" for one, and ".*" at the
/// end also for no extension at all.
bool MatchesMask(TextView name, TextView mask);

} // namespace ostrel

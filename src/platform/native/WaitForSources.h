#pragma once

#include <span>

#include "platform/TimerQueue.h"
#include "platform/WakeSource.h"

namespace ostrel {

/// Sleeps until a source is ready, but no longer than that many milliseconds; a signal may end it early.
/// Returns whether one is ready.
bool WaitForSources(std::span<WakeSource> sources, TimerQueue::Moment longest);

} // namespace ostrel

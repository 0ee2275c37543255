#include "platform/native/NativeClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "platform/native/LocalTime.h"
#include "platform/native/WaitForSources.h"

namespace ostrel {

namespace {

/// Counts from the start of the system.
TimerQueue::Moment Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

} // namespace

NativeClock::NativeClock() : queue_(Milliseconds) {}

std::uint32_t NativeClock::Ticks() const { return static_cast<std::uint32_t>(Milliseconds()); }

Date NativeClock::Now() const { return LocalTime(std::time(nullptr)); }

void NativeClock::Wait(Long milliseconds) {
    const TimerQueue::Moment end = Milliseconds() + milliseconds;
    do {
        Sleep(static_cast<Long>(std::max<TimerQueue::Moment>(end - Milliseconds(), 0)), {});
    } while (Milliseconds() < end);
}

bool NativeClock::Sleep(Long longest, std::span<WakeSource> sources) {
    if (!queue_.Due()) {
        const TimerQueue::Moment now = Milliseconds();
        const TimerQueue::Moment end = now + longest;
        if (WaitForSources(sources, std::min(end, queue_.Next().value_or(end)) - now)) return true;
    }
    queue_.RunDue();
    return WaitForSources(sources, 0);
}

} // namespace ostrel

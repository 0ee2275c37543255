#include "platform/native/NativeClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <thread>

#include "platform/native/LocalTime.h"

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
    for (;;) {
        queue_.RunDue();
        const TimerQueue::Moment now = Milliseconds();
        if (now >= end) return;
        const TimerQueue::Moment until = std::min(end, queue_.Next().value_or(end));
        if (until > now) std::this_thread::sleep_for(std::chrono::milliseconds(until - now));
    }
}

} // namespace ostrel

#include "platform/headless/RealClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <thread>

#include "text/DateText.h"

namespace ostrel {

TimerQueue::Moment RealClock::Milliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::uint32_t RealClock::Ticks() const { return static_cast<std::uint32_t>(Milliseconds()); }

Date RealClock::Now() const {
    const std::time_t now = std::time(nullptr);
    // One thread: the shared buffer of localtime is nobody else's.
    const std::tm local = *std::localtime(&now);
    return MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                    local.tm_sec);
}

void RealClock::Wait(Long milliseconds) {
    const TimerQueue::Moment end = Milliseconds() + std::max<Long>(milliseconds, 0);
    for (;;) {
        queue_.RunDue();
        const TimerQueue::Moment now = Milliseconds();
        if (now >= end) return;
        const TimerQueue::Moment next = queue_.Next().value_or(end);
        if (next > now) std::this_thread::sleep_for(std::chrono::milliseconds(std::min(next, end) - now));
    }
}

} // namespace ostrel

#include "platform/headless/VirtualClock.h"

#include <algorithm>

#include "text/DateText.h"

namespace ostrel {

Date VirtualClock::Now() const {
    constexpr double MillisecondsOfDay = 86'400'000.0;
    return {MakeDate(2001, 1, 1).serial + static_cast<double>(now_) / MillisecondsOfDay};
}

void VirtualClock::RunAllDue() {
    // Work that keeps posting more work must not hold the moment for ever.
    constexpr int MostRounds = 10'000;
    for (int round = 0; round < MostRounds && queue_.Due(); ++round) queue_.RunDue();
}

void VirtualClock::Advance(Long milliseconds) {
    const TimerQueue::Moment target = now_ + std::max<Long>(milliseconds, 0);
    RunAllDue();
    for (auto next = queue_.Next(); next && *next <= target && *next > now_; next = queue_.Next()) {
        now_ = *next;
        RunAllDue();
    }
    // A wait inside a handler may have gone further already.
    now_ = std::max(now_, target);
}

} // namespace ostrel

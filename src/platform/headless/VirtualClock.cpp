#include "platform/headless/VirtualClock.h"

#include <algorithm>

#include "platform/native/WaitForSources.h"
#include "text/DateText.h"

namespace ostrel {

Date VirtualClock::Now() const {
    constexpr double MillisecondsOfDay = 86'400'000.0;
    return {MakeDate(2001, 1, 1).serial + static_cast<double>(now_) / MillisecondsOfDay};
}

void VirtualClock::RunAllDue() {
    // Work that keeps posting more work must not stop time for ever.
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

void VirtualClock::Wait(Long milliseconds) {
    const std::uint32_t end = Ticks() + static_cast<std::uint32_t>(std::max<Long>(milliseconds, 0));
    for (;;) {
        RunAllDue();
        // Signed, so that the count may wrap.
        const auto left = static_cast<std::int32_t>(end - Ticks());
        if (left <= 0) return;
        const auto next = queue_.Next();
        if (!next || *next > now_ + left || *next <= now_) {
            now_ += left;
            return;
        }
        now_ = *next;
    }
}

bool VirtualClock::Sleep(Long longest, std::span<WakeSource> sources) {
    if (!queue_.Due()) {
        const TimerQueue::Moment end = now_ + std::max<Long>(longest, 0);
        const TimerQueue::Moment until = std::min(end, queue_.Next().value_or(end));
        if (!sources.empty() && WaitForSources(sources, until - now_)) return true;
        now_ = until;
    }
    RunAllDue();
    return !sources.empty() && WaitForSources(sources, 0);
}

} // namespace ostrel

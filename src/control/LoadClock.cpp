#include "control/LoadClock.h"

#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long Interval = 100;

} // namespace

LoadClock::LoadClock(Guard& guard, Events& events, Platform& platform)
    : guard_(guard), events_(events), platform_(platform),
      timer_(platform.clock->MakeTimer([this] { Tick(); })) {}

void LoadClock::Start() {
    running_ = true;
    if (!timer_->Running()) timer_->Start(Interval, false);
    startTicks_ = platform_.clock->Ticks();
}

Text LoadClock::Seconds() const {
    const std::uint32_t ticks = platform_.clock->Ticks();
    if (!running_ || ticks <= startTicks_) return {};
    const Long tenths = ToLong(static_cast<double>(ticks - startTicks_) / 100).value_or(0);
    return FormatNumber(static_cast<double>(tenths) / 10, "####0.0");
}

Text LoadClock::Stop() {
    Text seconds = Seconds();
    timer_->Stop();
    running_ = false;
    return seconds;
}

void LoadClock::Tick() {
    guard_([&] {
        // The timer runs once and is started again at the end, so however long a listener takes, ticks never
        // pile up.
        if (!running_) return;
        if (const Text seconds = Seconds(); !seconds.empty()) events_.DownloadTime.Tell(seconds);
        timer_->Start(Interval, false);
    });
}

} // namespace ostrel

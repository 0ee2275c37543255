#pragma once

#include <cstdint>
#include <memory>

#include "control/Guard.h"
#include "platform/Context.h"

namespace ostrel {

/// Measures how long a page takes to load, and tells it by `DownloadTime` about ten times a second.
class LoadClock {
public:
    LoadClock(Guard& guard, Events& events, Platform& platform);

    /// Counts from 0.
    void Start();
    /// Returns the seconds since the start with one decimal; empty where the clock does not run, in its first
    /// millisecond, and once the tick count has wrapped around.
    Text Seconds() const;
    /// Ends the count, and returns it as `Seconds` does.
    Text Stop();
    /// Ends the telling; the count goes on.
    void Silence() { timer_->Stop(); }

private:
    void Tick();

    Guard& guard_;
    Events& events_;
    Platform& platform_;
    std::unique_ptr<Timer> timer_;
    bool running_ = false;
    std::uint32_t startTicks_ = 0;
};

} // namespace ostrel

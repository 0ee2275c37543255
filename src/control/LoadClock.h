#pragma once

#include <cstdint>
#include <memory>

#include "control/Guard.h"
#include "platform/Context.h"

namespace ostrel {

/// Measures how long a page takes to load, and raises `DownloadTime` about ten times a second.
class LoadClock {
public:
    LoadClock(Guard& guard, Events& events, Platform& platform);

    /// Starts the count at 0, and the events.
    void Start();
    /// Returns the seconds since the start with one decimal; empty where the clock does not run, in its first
    /// millisecond, and once the tick count has wrapped around.
    Text Seconds() const;
    /// Ends count and events, and returns the count as `Seconds` does.
    Text Stop();
    /// Ends the events; the count goes on.
    void EndEvents() { timer_->Stop(); }

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

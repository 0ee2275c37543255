#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "platform/WakeSource.h"
#include "text/Text.h"

namespace ostrel {

/// A timer of the component's thread. It belongs to whoever holds it and ends with it.
class Timer {
public:
    virtual ~Timer() = default;
    /// Starts its count afresh. 0 milliseconds or less leaves it stopped.
    virtual void Start(Long milliseconds, bool repeating) = 0;
    virtual void Stop() = 0;
    virtual bool Running() const = 0;
};

/// Time, and the loop in which everything pending runs.
class Clock {
public:
    virtual ~Clock() = default;

    /// Milliseconds since the system started, wrapping after 32 bits.
    virtual std::uint32_t Ticks() const = 0;
    /// Local date and time.
    virtual Date Now() const = 0;
    /// The handler runs at a yield, never nested in itself.
    virtual std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) = 0;
    /// Runs `work` at the next yield, in the order of posting.
    virtual void Post(std::function<void()> work) = 0;
    /// Whether a yield would run anything. A few nanoseconds.
    virtual bool Pending() const = 0;
    /// Runs what is due, in order of due time, then of arming.
    virtual void Yield() = 0;
    /// Waits that long while everything that comes due runs.
    virtual void Wait(Long milliseconds) = 0;
    /// Sleeps until something is due, which then runs, or a source is ready, but no longer than `longest`
    /// milliseconds. It may end earlier with nothing done, so it belongs in a loop that looks at what it
    /// waits for. Returns whether a source is ready, which sets its `ready`.
    virtual bool Sleep(Long longest, std::span<WakeSource> sources) = 0;
};

} // namespace ostrel

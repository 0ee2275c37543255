#pragma once

#include "platform/TimerQueue.h"

namespace ostrel {

/// A clock that moves only by `Advance` and by the component's own waits, so that a run is repeatable to
/// the byte. Only a sleep with sources takes real time: as long as these are silent, and then its own time
/// moves on by as much. It starts at midnight of 1 January 2001.
class VirtualClock final : public Clock {
public:
    std::uint32_t Ticks() const override { return static_cast<std::uint32_t>(tickOffset_ + now_); }
    /// From now on the count runs from there; timers and the date do not notice, waits do.
    void Ticks(std::uint32_t ticks) { tickOffset_ = static_cast<TimerQueue::Moment>(ticks) - now_; }
    Date Now() const override;

    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) override {
        return queue_.MakeTimer(std::move(handler));
    }
    void Post(std::function<void()> work) override { queue_.Post(std::move(work)); }
    bool Pending() const override { return queue_.Due(); }
    void Yield() override { queue_.RunDue(); }
    /// Ends by the tick count, which may be set meanwhile.
    void Wait(Long milliseconds) override;
    /// Time does not move if a source ends it.
    bool Sleep(Long longest, std::span<WakeSource> sources) override;

    /// Lets that much time pass, from one due moment to the next. What is due at the last one still runs.
    void Advance(Long milliseconds);

private:
    void RunAllDue();

    TimerQueue::Moment now_ = 0;
    TimerQueue::Moment tickOffset_ = 0;
    TimerQueue queue_{[this] { return now_; }};
};

} // namespace ostrel

#pragma once

#include <QTimer>

#include "platform/Clock.h"
#include "platform/TimerQueue.h"

namespace ostrel::desktop {

/// Real time on the application's event loop: timers and posted work run when the loop turns. A yield turns
/// the loop once, so a long job that yields leaves the windows alive.
class QtClock final : public Clock {
public:
    /// `turned` is called at the end of each yield, when windows may have to show what has changed.
    explicit QtClock(std::function<void()> turned = {});

    std::uint32_t Ticks() const override;
    Date Now() const override;
    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) override;
    void Post(std::function<void()> work) override;
    bool Pending() const override;
    void Yield() override;
    void Wait(Long milliseconds) override;
    /// What the loop does for windows ends it too.
    bool Sleep(Long longest, std::span<WakeSource> sources) override;

    /// Whether a yield is running.
    bool InYield() const { return depth_ > 0; }

private:
    class LoopTimer;

    void RunDue();
    /// Wakes the event loop when the next timer is due.
    void Wake();

    std::function<void()> turned_;
    TimerQueue queue_;
    QTimer alarm_;
    TimerQueue::Moment lastTurn_ = 0;
    int depth_ = 0;
};

} // namespace ostrel::desktop

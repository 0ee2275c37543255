#pragma once

#include "platform/TimerQueue.h"

namespace ostrel {

/// The system's time, for programs without an event loop of their own: what is due runs at their yields.
class RealClock final : public Clock {
public:
    std::uint32_t Ticks() const override;
    Date Now() const override;
    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) override {
        return queue_.MakeTimer(std::move(handler));
    }
    void Post(std::function<void()> work) override { queue_.Post(std::move(work)); }
    bool Pending() const override { return queue_.Due(); }
    void Yield() override { queue_.RunDue(); }
    void Wait(Long milliseconds) override;

private:
    static TimerQueue::Moment Milliseconds();

    TimerQueue queue_{&Milliseconds};
};

} // namespace ostrel

#pragma once

#include "platform/Clock.h"
#include "platform/TimerQueue.h"

namespace ostrel {

/// Real time. Nothing runs but at a yield or in a wait.
class NativeClock final : public Clock {
public:
    NativeClock();

    std::uint32_t Ticks() const override;
    Date Now() const override;
    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) override {
        return queue_.MakeTimer(std::move(handler));
    }
    void Post(std::function<void()> work) override { queue_.Post(std::move(work)); }
    bool Pending() const override { return queue_.Due(); }
    void Yield() override { queue_.RunDue(); }
    void Wait(Long milliseconds) override;
    bool Sleep(Long longest, std::span<WakeSource> sources) override;

private:
    TimerQueue queue_;
};

} // namespace ostrel

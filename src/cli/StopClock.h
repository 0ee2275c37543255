#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "cli/Interrupt.h"
#include "platform/Clock.h"

namespace ostrel::cli {

/// A clock that calls `stop` at the first yield after a Ctrl-C.
class StopClock final : public Clock {
public:
    StopClock(std::unique_ptr<Clock> inner, std::function<void()> stop)
        : inner_(std::move(inner)), stop_(std::move(stop)) {}

    std::uint32_t Ticks() const override { return inner_->Ticks(); }
    Date Now() const override { return inner_->Now(); }
    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler) override {
        return inner_->MakeTimer(std::move(handler));
    }
    void Post(std::function<void()> work) override { inner_->Post(std::move(work)); }
    bool Pending() const override { return (stop_ && Interrupted()) || inner_->Pending(); }
    void Yield() override {
        inner_->Yield();
        if (stop_ && Interrupted()) std::exchange(stop_, nullptr)();
    }
    void Wait(Long milliseconds) override { inner_->Wait(milliseconds); }
    bool Sleep(Long longest, std::span<WakeSource> sources) override {
        const bool ready = inner_->Sleep(Interrupted() ? 0 : longest, sources);
        if (Interrupted()) stop_();
        return ready;
    }

private:
    std::unique_ptr<Clock> inner_;
    std::function<void()> stop_;
};

} // namespace ostrel::cli

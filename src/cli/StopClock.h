#pragma once

#include <functional>
#include <memory>

#include "cli/Interrupt.h"
#include "platform/Clock.h"

namespace ostrel::cli {

/// A clock at whose every yield a Ctrl-C arrives.
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
    bool Pending() const override { return Interrupted() || inner_->Pending(); }
    void Yield() override {
        inner_->Yield();
        if (Interrupted()) stop_();
    }
    void Wait(Long milliseconds) override { inner_->Wait(milliseconds); }

private:
    std::unique_ptr<Clock> inner_;
    std::function<void()> stop_;
};

} // namespace ostrel::cli

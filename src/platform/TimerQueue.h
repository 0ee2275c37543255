#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "platform/Clock.h"

namespace ostrel {

/// The timers and the posted work of one clock, real or virtual. A clock gives the time and says when to run;
/// the order, and what may run inside what, is decided here. It outlives the timers that it made.
class TimerQueue {
public:
    /// Milliseconds from any fixed start.
    using Moment = std::int64_t;

    /// `now` never goes back.
    explicit TimerQueue(std::function<Moment()> now) : now_(std::move(now)) {}
    TimerQueue(const TimerQueue&) = delete;
    TimerQueue& operator=(const TimerQueue&) = delete;

    std::unique_ptr<Timer> MakeTimer(std::function<void()> handler);
    /// `work` is due from now on.
    void Post(std::function<void()> work);

    /// When the next thing is due that may run; nothing where none is armed.
    std::optional<Moment> Next() const {
        return earliest_ == Never || depth_ >= MaximumDepth ? std::nullopt : std::optional(earliest_);
    }
    /// Whether `RunDue` would run anything. Reads the time only where something is armed.
    bool Due() const { return earliest_ != Never && earliest_ <= now_() && depth_ < MaximumDepth; }

    /// Runs what is due, in order of due time, then of arming. What its handlers arm or post waits for the
    /// next call. It may be called from inside a handler, where it runs everything but that handler.
    void RunDue();

private:
    class QueuedTimer;

    /// Due time, then order of arming.
    using Place = std::pair<Moment, std::uint64_t>;

    struct Item {
        std::function<void()> handler;
        Moment interval = 0;
        bool repeating = false;
        bool armed = false;
        bool running = false;
        Place place;
    };

    static constexpr Moment Never = std::numeric_limits<Moment>::max();
    /// Work that posts work and yields would otherwise nest without end.
    static constexpr int MaximumDepth = 64;

    void Arm(const std::shared_ptr<Item>& item, Moment due);
    void Disarm(Item& item);
    void Enter(const std::shared_ptr<Item>& item);
    void NoteEarliest() { earliest_ = waiting_.empty() ? Never : waiting_.begin()->first.first; }
    void Run(const std::shared_ptr<Item>& item, Moment now);

    std::function<Moment()> now_;
    /// Armed items whose handler is not running.
    std::map<Place, std::shared_ptr<Item>> waiting_;
    Moment earliest_ = Never;
    std::uint64_t armings_ = 0;
    int depth_ = 0;
};

} // namespace ostrel

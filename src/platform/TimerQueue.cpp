#include "platform/TimerQueue.h"

namespace ostrel {

class TimerQueue::QueuedTimer final : public Timer {
public:
    QueuedTimer(TimerQueue& queue, std::function<void()> handler)
        : queue_(queue), item_(std::make_shared<Item>()) {
        item_->handler = std::move(handler);
    }
    ~QueuedTimer() override { queue_.Disarm(*item_); }

    void Start(Long milliseconds, bool repeating) override {
        queue_.Disarm(*item_);
        if (milliseconds <= 0) return;
        item_->interval = milliseconds;
        item_->repeating = repeating;
        queue_.Arm(item_, queue_.now_() + milliseconds);
    }
    void Stop() override { queue_.Disarm(*item_); }
    bool Running() const override { return item_->armed; }

private:
    TimerQueue& queue_;
    std::shared_ptr<Item> item_;
};

std::unique_ptr<Timer> TimerQueue::MakeTimer(std::function<void()> handler) {
    return std::make_unique<QueuedTimer>(*this, std::move(handler));
}

void TimerQueue::Post(std::function<void()> work) {
    const auto item = std::make_shared<Item>();
    item->handler = std::move(work);
    Arm(item, now_());
}

void TimerQueue::Arm(const std::shared_ptr<Item>& item, Moment due) {
    item->armed = true;
    item->place = {due, ++armings_};
    // A running handler enters when it is done, so that it is never run inside itself.
    if (!item->running) Enter(item);
}

void TimerQueue::Disarm(Item& item) {
    if (item.armed && !item.running) {
        waiting_.erase(item.place);
        NoteEarliest();
    }
    item.armed = false;
}

void TimerQueue::Enter(const std::shared_ptr<Item>& item) {
    waiting_.emplace(item->place, item);
    NoteEarliest();
}

void TimerQueue::RunDue() {
    if (depth_ >= MaximumDepth) return;
    const Moment now = now_();
    const std::uint64_t last = armings_;
    while (earliest_ <= now) {
        auto next = waiting_.begin();
        while (next != waiting_.end() && next->first.first <= now && next->first.second > last) ++next;
        if (next == waiting_.end() || next->first.first > now) return;
        const std::shared_ptr<Item> item = next->second;
        Disarm(*item);
        Run(item, now);
    }
}

void TimerQueue::Run(const std::shared_ptr<Item>& item, Moment now) {
    struct Turn {
        TimerQueue& queue;
        const std::shared_ptr<Item>& item;
        Turn(TimerQueue& queueOfTurn, const std::shared_ptr<Item>& itemOfTurn)
            : queue(queueOfTurn), item(itemOfTurn) {
            item->running = true;
            ++queue.depth_;
        }
        ~Turn() {
            --queue.depth_;
            item->running = false;
            if (item->armed) queue.Enter(item);
        }
    } const turn(*this, item);

    if (item->repeating) {
        // Ticks that were missed are not made up for.
        const Moment due = item->place.first + item->interval;
        Arm(item, due > now ? due : now + item->interval);
    }
    item->handler();
}

} // namespace ostrel

#include "desktop/QtClock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>
#include <vector>

#include "platform/native/LocalTime.h"
#include "platform/native/WaitForSources.h"

namespace ostrel::desktop {

namespace {

/// A window that is served this often seems to answer at once; serving it more often costs the job time.
constexpr TimerQueue::Moment TurnInterval = 15;
/// Handlers that yield inside one another would otherwise nest without end.
constexpr int MaximumDepth = 16;

TimerQueue::Moment Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

/// Lets the loop wake for the sources while it lives.
class LoopSources {
public:
    explicit LoopSources(std::span<const WakeSource> sources) {
        for (const WakeSource& source : sources) {
            if (source.descriptor < 0) continue;
            if (source.read) Add(source.descriptor, QSocketNotifier::Read);
            if (source.write) Add(source.descriptor, QSocketNotifier::Write);
        }
    }

private:
    void Add(int descriptor, QSocketNotifier::Type type) {
        notifiers_.push_back(std::make_unique<QSocketNotifier>(descriptor, type));
    }

    std::vector<std::unique_ptr<QSocketNotifier>> notifiers_;
};

} // namespace

/// A timer of the queue that also wakes the loop.
class QtClock::LoopTimer final : public Timer {
public:
    LoopTimer(QtClock& clock, std::unique_ptr<Timer> inner) : clock_(clock), inner_(std::move(inner)) {}

    void Start(Long milliseconds, bool repeating) override {
        inner_->Start(milliseconds, repeating);
        clock_.Wake();
    }
    void Stop() override { inner_->Stop(); }
    bool Running() const override { return inner_->Running(); }

private:
    QtClock& clock_;
    std::unique_ptr<Timer> inner_;
};

QtClock::QtClock(std::function<void()> turned) : turned_(std::move(turned)), queue_(Milliseconds) {
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { RunDue(); });
}

std::uint32_t QtClock::Ticks() const { return static_cast<std::uint32_t>(Milliseconds()); }

Date QtClock::Now() const { return LocalTime(std::time(nullptr)); }

std::unique_ptr<Timer> QtClock::MakeTimer(std::function<void()> handler) {
    return std::make_unique<LoopTimer>(*this, queue_.MakeTimer(std::move(handler)));
}

void QtClock::Post(std::function<void()> work) {
    queue_.Post(std::move(work));
    Wake();
}

bool QtClock::Pending() const {
    return depth_ < MaximumDepth && (Milliseconds() - lastTurn_ >= TurnInterval || queue_.Due());
}

void QtClock::Yield() {
    if (depth_ >= MaximumDepth) return;
    ++depth_;
    RunDue();
    if (turned_) turned_();
    QCoreApplication::processEvents();
    --depth_;
    lastTurn_ = Milliseconds();
}

void QtClock::Wait(Long milliseconds) {
    if (milliseconds <= 0) return Yield();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    ++depth_;
    loop.exec();
    --depth_;
}

bool QtClock::Sleep(Long longest, std::span<WakeSource> sources) {
    if (depth_ >= MaximumDepth) return WaitForSources(sources, longest);
    const bool wait = longest > 0 && !queue_.Due() && !WaitForSources(sources, 0);
    ++depth_;
    RunDue();
    if (turned_) turned_();
    if (wait) {
        const LoopSources wakers(sources);
        QTimer end;
        end.setSingleShot(true);
        end.setTimerType(Qt::PreciseTimer);
        end.start(longest);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } else {
        QCoreApplication::processEvents();
    }
    --depth_;
    lastTurn_ = Milliseconds();
    return WaitForSources(sources, 0);
}

void QtClock::RunDue() {
    queue_.RunDue();
    Wake();
}

void QtClock::Wake() {
    const auto next = queue_.Next();
    if (!next) return alarm_.stop();
    constexpr TimerQueue::Moment Longest = std::numeric_limits<int>::max();
    alarm_.start(static_cast<int>(std::clamp<TimerQueue::Moment>(*next - Milliseconds(), 0, Longest)));
}

} // namespace ostrel::desktop

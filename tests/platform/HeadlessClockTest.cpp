#include <gtest/gtest.h>

#include "platform/headless/VirtualClock.h"
#include "support/SleepLog.h"
#include "text/DateText.h"

namespace ostrel::test {
namespace {

TEST(VirtualClock, GoesFromOneDueMomentToTheNext) {
    VirtualClock clock;
    Text heard;
    const auto note = [&](const char* name) { heard += name + std::to_string(clock.Ticks()) + " "; };
    const auto slow = clock.MakeTimer([&] { note("slow"); });
    const auto fast = clock.MakeTimer([&] { note("fast"); });
    slow->Start(200, false);
    fast->Start(100, true);
    clock.Post([&] {
        note("post");
        clock.Post([&] { note("again"); });
    });
    clock.Advance(0);
    EXPECT_EQ(heard, "post0 again0 ");
    heard.clear();
    clock.Advance(350);
    // Of two due at once the one that was armed first runs first.
    EXPECT_EQ(heard, "fast100 slow200 fast200 fast300 ");
    EXPECT_EQ(clock.Ticks(), 350u);
}

TEST(VirtualClock, AWaitInsideAHandlerMovesTimeOn) {
    VirtualClock clock;
    int ticks = 0;
    std::unique_ptr<Timer> outer, inner;
    inner = clock.MakeTimer([&] { ++ticks; });
    outer = clock.MakeTimer([&] {
        inner->Start(10, true);
        clock.Wait(100);
        outer.reset();
    });
    outer->Start(50, true);
    clock.Advance(60);
    EXPECT_EQ(ticks, 10);
    EXPECT_EQ(clock.Ticks(), 150u);
    clock.Advance(10);
    EXPECT_EQ(ticks, 11);
}

TEST(VirtualClock, WorkThatPostsItselfDoesNotHoldTheMoment) {
    VirtualClock clock;
    long rounds = 0;
    std::function<void()> work = [&] {
        ++rounds;
        clock.Post(work);
    };
    clock.Post(work);
    clock.Advance(5);
    EXPECT_GT(rounds, 1);
    EXPECT_EQ(clock.Ticks(), 5u);
}

TEST(VirtualClock, SleepsUntilSomethingIsDueOrReady) {
    VirtualClock clock;
    EXPECT_EQ(SleepLog(clock), ExpectedSleepLog);
    // The timer's 30 and the last sleep's 20: a source takes none.
    EXPECT_EQ(clock.Ticks(), 50u);
    const auto timer = clock.MakeTimer([] {});
    timer->Start(300, false);
    for (const std::uint32_t ticks : {250u, 350u, 550u}) {
        EXPECT_FALSE(clock.Sleep(200, {}));
        EXPECT_EQ(clock.Ticks(), ticks);
    }
}

TEST(VirtualClock, TicksAreSetApartFromTime) {
    VirtualClock clock;
    clock.Ticks(4294967095U);
    clock.Advance(400);
    EXPECT_EQ(clock.Ticks(), 199u);
    EXPECT_EQ(FormatDate(clock.Now(), "yyyy-mm-dd hh:nn:ss"), "2001-01-01 00:00:00");
    clock.Advance(86'399'600);
    EXPECT_EQ(FormatDate(clock.Now(), "yyyy-mm-dd hh:nn:ss"), "2001-01-02 00:00:00");
}

} // namespace
} // namespace ostrel::test

#include "platform/TimerQueue.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace ostrel;

namespace {

/// A queue whose time the test moves by hand.
class TimerQueueTest : public testing::Test {
protected:
    std::unique_ptr<Timer> Named(const std::string& name) {
        return queue.MakeTimer([this, name] { log += name + std::to_string(now) + " "; });
    }
    void Advance(TimerQueue::Moment target) {
        while (queue.Next() && *queue.Next() <= target) {
            now = std::max(now, *queue.Next());
            queue.RunDue();
        }
        now = target;
    }

    TimerQueue::Moment now = 0;
    std::string log;
    TimerQueue queue{[this] { return now; }};
};

} // namespace

TEST_F(TimerQueueTest, FiresInOrderOfDueTimeThenOfArming) {
    const auto a = Named("a"), b = Named("b"), c = Named("c"), d = Named("d");
    b->Start(100, true);
    a->Start(100, true);
    c->Start(50, false);
    d->Start(70, false);
    d->Start(120, false);
    Advance(320);
    EXPECT_EQ(log, "c50 b100 a100 d120 b200 a200 b300 a300 ");
    EXPECT_TRUE(a->Running());
    EXPECT_FALSE(c->Running());
    log.clear();
    a->Stop();
    b->Start(0, true);
    EXPECT_FALSE(a->Running() || b->Running() || queue.Next().has_value());
    now = 10000;
    EXPECT_FALSE(queue.Due());
    queue.RunDue();
    EXPECT_EQ(log, "");
}

TEST_F(TimerQueueTest, MissedTicksAreNotMadeUpFor) {
    const auto a = Named("a");
    a->Start(100, true);
    now = 350;
    EXPECT_TRUE(queue.Due());
    queue.RunDue();
    queue.RunDue();
    EXPECT_EQ(log, "a350 ");
    EXPECT_EQ(queue.Next(), 450);
}

TEST_F(TimerQueueTest, AHandlerMayArmDisarmAndDestroyTimers) {
    std::unique_ptr<Timer> self, victim = Named("victim"), later = Named("later");
    int runs = 0;
    self = queue.MakeTimer([&] {
        ++runs;
        later->Start(10, false);
        victim.reset();
        if (runs == 2) self.reset();
        log += "self ";
    });
    self->Start(20, true);
    victim->Start(20, false);
    Advance(100);
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(log, "self later30 self later50 ");

    auto again = std::unique_ptr<Timer>();
    int count = 0;
    again = queue.MakeTimer([&] {
        if (++count < 3) again->Start(5, false);
    });
    again->Start(5, false);
    Advance(200);
    EXPECT_EQ(count, 3);
    EXPECT_FALSE(again->Running());
}

TEST_F(TimerQueueTest, AYieldInsideAHandlerRunsAllOthersButNeverItself) {
    const auto other = Named("other");
    int depth = 0, deepest = 0;
    std::unique_ptr<Timer> nested = queue.MakeTimer([&] {
        deepest = std::max(deepest, ++depth);
        log += "(";
        for (int i = 0; i < 3; ++i) {
            now += 100;
            if (queue.Due()) queue.RunDue();
        }
        EXPECT_FALSE(queue.Due()); // its own tick, though due, does not count meanwhile
        log += ")";
        --depth;
    });
    nested->Start(100, true);
    other->Start(250, false);
    now = 100;
    queue.RunDue();
    EXPECT_EQ(log, "(other300 )");
    EXPECT_TRUE(queue.Due());
    queue.RunDue();
    EXPECT_EQ(log, "(other300 )()");
    EXPECT_EQ(deepest, 1);
}

TEST_F(TimerQueueTest, PostedWorkRunsAtTheNextTurnInOrder) {
    const auto timer = Named("timer");
    timer->Start(10, false);
    now = 20;
    queue.Post([&] {
        log += "one ";
        queue.Post([&] { log += "three "; });
    });
    queue.Post([&] { log += "two "; });
    EXPECT_TRUE(queue.Due());
    queue.RunDue();
    EXPECT_EQ(log, "timer20 one two ");
    queue.RunDue();
    EXPECT_EQ(log, "timer20 one two three ");
    EXPECT_FALSE(queue.Due());
}

TEST_F(TimerQueueTest, NestingHasAnEnd) {
    int depth = 0, deepest = 0;
    std::function<void()> work = [&] {
        deepest = std::max(deepest, ++depth);
        queue.Post(work);
        if (deepest < 1000) queue.RunDue();
        --depth;
    };
    queue.Post(work);
    queue.RunDue();
    EXPECT_EQ(deepest, 64);
}

TEST_F(TimerQueueTest, AThrowingHandlerLeavesTheQueueInOrder) {
    int runs = 0;
    const auto thrower = queue.MakeTimer([&] {
        if (++runs == 1) throw std::runtime_error("once");
    });
    thrower->Start(10, true);
    now = 10;
    EXPECT_THROW(queue.RunDue(), std::runtime_error);
    Advance(30);
    EXPECT_EQ(runs, 3);
}

#include "platform/native/NativeClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/SleepLog.h"

using namespace ostrel;

TEST(NativeClock, WaitsWhileEverythingDueRuns) {
    NativeClock clock;
    std::string log;
    int ticks = 0;
    const auto late = clock.MakeTimer([&] { log += "late "; });
    const auto never = clock.MakeTimer([&] { log += "never "; });
    const auto nested = clock.MakeTimer([&] {
        log += "(";
        clock.Wait(20);
        log += ")";
    });
    const auto repeating = clock.MakeTimer([&] { ++ticks; });
    EXPECT_FALSE(clock.Pending());
    never->Start(3'600'000, false);
    late->Start(15, false);
    nested->Start(5, false);
    repeating->Start(3, true);
    clock.Post([&] { log += "posted "; });
    EXPECT_TRUE(clock.Pending());
    const std::uint32_t before = clock.Ticks();
    clock.Wait(30);
    EXPECT_GE(clock.Ticks() - before, 30u);
    EXPECT_EQ(log, "posted (late )");
    EXPECT_GE(ticks, 2);
    clock.Wait(-1);
}

TEST(NativeClock, SleepsUntilSomethingIsDueOrReady) {
    NativeClock clock;
    EXPECT_EQ(test::SleepLog(clock), test::ExpectedSleepLog);
}

TEST(NativeClock, NowIsTheLocalTime) {
    NativeClock clock;
    const std::time_t before = std::time(nullptr);
    const double serial = clock.Now().serial;
    std::tm local{};
    ::localtime_r(&before, &local);
    const double secondOfDay = (serial - std::floor(serial)) * 86400;
    const double expected = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
    EXPECT_LT(std::fmod(secondOfDay - expected + 86400 + 1, 86400), 60);
}

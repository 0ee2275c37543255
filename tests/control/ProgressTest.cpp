#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

TEST(StopPanel, MovesThePaneDown) {
    ControlBench bench;
    bench.web->ToolbarVisible(true);
    const Children& view = bench.web->View();
    bench.web->StopPressed(true);
    bench.Settle();
    for (int shown = 0; shown < 2; ++shown) {
        bench.web->StopShow("Working");
        EXPECT_TRUE(view.fraStop.visible);
        EXPECT_EQ(view.fraStop.caption, "Working");
        EXPECT_EQ(view.fraStop.left, 2700);
        EXPECT_EQ(view.fraStop.top, 600);
        EXPECT_EQ(bench.web->BrowserTop(), 600 + 1200 + 120);
        EXPECT_EQ(view.brwBrowser.height, 7200 - 1920);
        EXPECT_FALSE(bench.web->StopPressed());
        EXPECT_EQ(bench.platform.Display().Pointer(), PointerShape::Hourglass);
        EXPECT_EQ(view.cmdStop.pointer, 1);
    }
    EXPECT_TRUE(bench.web->PressChild("cmdStop"));
    EXPECT_TRUE(bench.web->Around().run.StopRequested);
    bench.web->StopHide();
    EXPECT_TRUE(bench.web->StopPressed());
    EXPECT_FALSE(bench.web->PressChild("cmdStop"));
    EXPECT_EQ(bench.web->BrowserTop(), 345);
    EXPECT_EQ(bench.platform.Display().Pointer(), PointerShape::Default);
}

TEST(StopPanel, GaugeShowsAFraction) {
    ControlBench bench;
    const Children& view = bench.web->View();
    bench.web->StopShow("x");
    EXPECT_FALSE(view.picGauge.visible);
    bench.web->StopGaugeReset();
    EXPECT_TRUE(view.picGauge.visible);
    EXPECT_FALSE(view.picGauge2.visible);
    struct Case {
        Single fraction;
        Long width;
    };
    for (const auto& c : std::vector<Case>{{0.5F, 1980}, {0, 0}, {2, 7920}, {1e30F, 7920}}) {
        bench.web->StopGaugeShow(c.fraction);
        EXPECT_TRUE(view.picGauge2.visible);
        EXPECT_EQ(view.picGauge2.width, c.width) << c.fraction;
    }
    bench.web->StopShow("again");
    EXPECT_FALSE(view.picGauge.visible);
}

TEST(LoadClock, ReadsTenthsOfASecond) {
    ControlBench bench;
    EXPECT_EQ(bench.web->ClockTime(), "");
    EXPECT_EQ(bench.web->ClockStop(), "");
    bench.web->ClockStart();
    EXPECT_EQ(bench.web->ClockTime(), "") << "the same millisecond";
    struct Case {
        Long step;
        Text seconds;
    };
    for (const auto& c :
         std::vector<Case>{{1, "0.0"}, {49, "0.0"}, {100, "0.2"}, {1084, "1.2"}, {998'766, "1000.0"}}) {
        bench.Clock().Advance(c.step);
        EXPECT_EQ(bench.web->ClockTime(), c.seconds);
    }
    EXPECT_EQ(bench.web->ClockStop(), "1000.0");
    EXPECT_EQ(bench.web->ClockTime(), "");
}

TEST(LoadClock, TellsTenTimesASecondUntilStopped) {
    ControlBench bench;
    bench.Settle();
    bench.web->ClockStart();
    bench.Clock().Advance(50);
    bench.web->ClockStart();
    bench.Clock().Advance(1000);
    Lines told = bench.Take();
    ASSERT_EQ(told.size(), 10u);
    EXPECT_EQ(told[0], "DownloadTime 0.0") << "a second start counts from there and leaves the timer";
    EXPECT_EQ(told[9], "DownloadTime 1.0");
    bench.web->ClockStop();
    bench.Clock().Advance(1000);
    EXPECT_TRUE(bench.Take().empty());
}

TEST(LoadClock, WrappedTicksGiveNothing) {
    ControlBench bench;
    bench.Settle();
    bench.Clock().Ticks(4294967095U);
    bench.web->ClockStart();
    bench.Clock().Advance(100);
    EXPECT_EQ(bench.web->ClockTime(), "0.1");
    bench.Clock().Advance(300);
    EXPECT_EQ(bench.web->ClockTime(), "");
    EXPECT_EQ(bench.Take(), (Lines{"DownloadTime 0.1", "DownloadTime 0.2"}));
    bench.web->ClockStart();
    bench.Clock().Advance(100);
    EXPECT_EQ(bench.Take(), Lines{"DownloadTime 0.1"});
}

TEST(LoadClock, ATickIsNeverInsideATick) {
    ControlBench bench;
    bench.Settle();
    int inside = 0, deepest = 0;
    bench.web->events.DownloadTime.Listen([&](Text&) {
        deepest = std::max(deepest, ++inside);
        bench.Clock().Wait(350);
        --inside;
    });
    bench.web->ClockStart();
    bench.Clock().Advance(1000);
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(bench.Take(), (Lines{"DownloadTime 0.1", "DownloadTime 0.6", "DownloadTime 1.0"}));
}

} // namespace
} // namespace ostrel::test

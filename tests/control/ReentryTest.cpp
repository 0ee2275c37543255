#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

/// A report of so many rows, whose cells carry its name.
bool Report(OstrelWebHelp& web, const Text& name, Long rows) {
    Grid<Text> cells(rows, 2);
    for (Long row = 1; row <= rows; ++row) {
        cells.Put(row, 1, name + std::to_string(row));
        cells.Put(row, 2, "end");
    }
    Text error;
    return web.PageCreateTableNoTags("C:\\out\\" + name + ".htm", name, rows, 2, {"First", "Second"},
                                     {false, false}, cells, error);
}

TEST(Reentry, AReportInsideAReport) {
    ControlBench alone, nested;
    for (ControlBench* bench : {&alone, &nested}) bench->Files().directories.insert("C:\\out");
    Report(*alone.web, "outer", 200);
    int raised = 0;
    nested.web->events.PageCreateProgress.Listen([&](Text&, Long&) {
        if (++raised == 3) {
            EXPECT_TRUE(Report(*nested.web, "inner", 120));
        }
    });
    EXPECT_TRUE(Report(*nested.web, "outer", 200));
    EXPECT_TRUE(nested.Files().files.contains("C:\\out\\inner.htm"));
    EXPECT_EQ(nested.Files().files["C:\\out\\outer.htm"].size(),
              alone.Files().files["C:\\out\\outer.htm"].size());
}

TEST(Reentry, EveryMemberOfTheFrameInsideEveryEventOfALoad) {
    ControlBench bench;
    bench.Files().Add("C:\\help\\a.htm", "<title>A</title>");
    bench.web->DirectoryHelp("C:\\help");
    bench.web->ToolbarVisible(true);
    bench.Settle();
    int depth = 0;
    bench.web->events.ListenToAll([&](EventBase& event, std::span<const ArgumentRef>) {
        if (depth > 2) return;
        ++depth;
        Text error;
        bench.web->ButtonAdd("Mine", "a.bmp", "", error);
        bench.web->Resize();
        bench.web->ButtonClear();
        bench.web->StopShow("x");
        bench.Clock().Yield();
        bench.web->StopHide();
        bench.web->ClockStop();
        bench.web->ClockStart();
        bench.web->PageReset();
        if (event.Name() == "HelpPageBegin") bench.web->HelpPageLoadNow();
        if (event.Name() == "DownloadBegin") bench.web->RefreshIfExpired();
        if (event.Name() == "DownloadComplete") bench.web->InitProperties();
        --depth;
    });
    Text error;
    EXPECT_TRUE(bench.web->HelpPageLoad("a.htm", error));
    bench.Clock().Advance(2000);
    EXPECT_EQ(depth, 0);
}

TEST(Reentry, TheStopButtonIsHeardInsideALoop) {
    ControlBench bench;
    bench.web->StopShow("Working");
    const auto user = bench.platform.clock->MakeTimer([&] { bench.web->PressChild("cmdStop"); });
    user->Start(1, false);
    int rounds = 0;
    while (!bench.web->StopPressed() && rounds < 1000) {
        bench.Clock().Wait(1);
        ++rounds;
    }
    EXPECT_EQ(rounds, 1);
    bench.web->StopHide();
}

} // namespace
} // namespace ostrel::test

#include <gtest/gtest.h>

#include "control/Bag.h"
#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

TEST(Lifecycle, EveryStepEndsWithItsTrace) {
    ControlBench bench(ControlBench::Start::Bare);
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Initialise"});
    bench.web->InitProperties();
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Init Properties"});
    bench.web->ResizeTo(5000, 4000);
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Resize"});
    MapBag bag;
    bench.web->WriteProperties(bag);
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Write Properties"});
    bench.web->ReadProperties(bag);
    EXPECT_EQ(bench.Take(),
              (Lines{"StatusTextChange Web Help - Resize", "StatusTextChange Web Help - Read Properties"}));
    EXPECT_TRUE(bench.changed.empty());
    bench.web->Terminate();
    bench.web->Terminate();
    bench.web.reset();
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Terminate"});
}

TEST(Lifecycle, ConstructionShowsABlankPage) {
    ControlBench bench(ControlBench::Start::Bare);
    const auto asked = bench.Pane().TakeLog();
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].name, "Navigate");
    EXPECT_EQ(std::get<Text>(asked[0].arguments[0]), "about:blank");
    EXPECT_EQ(bench.web->LocationURL(), "about:blank");
    EXPECT_FALSE(bench.web->Busy());
}

TEST(Lifecycle, BareControlIsEmptyAndInitialisedOneHasDefaults) {
    ControlBench bench(ControlBench::Start::Bare);
    EXPECT_EQ(bench.web->HelpDelay(), 0);
    EXPECT_EQ(bench.web->ProgramName(), "");
    EXPECT_FALSE(bench.web->Offline());
    bench.web->InitProperties();
    EXPECT_EQ(bench.web->HelpDelay(), 200);
    EXPECT_EQ(bench.web->ToolbarButtonMargin(), 60);
    EXPECT_EQ(bench.web->DirectoryRun(), "C:\\bin");
    EXPECT_TRUE(bench.web->Offline());
}

TEST(Lifecycle, InitPropertiesTakesEverythingBack) {
    ControlBench bench;
    bench.web->HelpPart2("part");
    bench.web->Offline(false);
    bench.web->StopPressed(true);
    bench.web->PageTableColumnHide(3, true);
    bench.web->HelpRobots("NoIndex");
    bench.web->InitProperties();
    EXPECT_EQ(bench.web->HelpPart2(), "");
    EXPECT_TRUE(bench.web->Offline());
    EXPECT_FALSE(bench.web->StopPressed());
    EXPECT_FALSE(bench.web->PageTableColumnHide(3));
    EXPECT_EQ(bench.web->HelpRobots(), "");
}

TEST(Lifecycle, TerminateDeletesTheWorkFiles) {
    ControlBench bench;
    for (const char* name : {"C:\\help\\$$OstrelWH0.html", "C:\\help\\$$OstrelWH9.html", "C:\\help\\a.html"})
        bench.Files().Add(name, "x");
    bench.web->DirectoryHelp("C:\\help");
    bench.web->Terminate();
    EXPECT_EQ(bench.Files().files.size(), 1u);
    EXPECT_TRUE(bench.Files().files.contains("C:\\help\\a.html"));
}

TEST(Lifecycle, RunsWithoutAPlatformAtAll) {
    Platform nothing;
    OstrelWebHelp web(nothing);
    web.InitProperties();
    web.ResizeTo(100, 100);
    Text error;
    EXPECT_TRUE(web.LoadURL("http://a/", error));
    EXPECT_TRUE(web.GoBack());
    web.Cancel();
    web.Refresh();
    web.StopShow("x");
    web.StopHide();
    web.ShowAboutBox();
    EXPECT_EQ(web.ClockStop(), "");
    EXPECT_EQ(web.LocationURL(), "");
}

TEST(Lifecycle, NestedCallsEndBeforeTheStackDoes) {
    ControlBench bench;
    int deepest = 0, depth = 0;
    bench.web->events.StatusTextChange.Listen([&](Text&) {
        deepest = std::max(deepest, ++depth);
        EXPECT_EQ(bench.web->HelpDelay(), 200) << "a get works at any depth";
        bench.web->Resize();
        --depth;
    });
    bench.web->Resize();
    EXPECT_GT(deepest, 10);
    EXPECT_LE(deepest, 64);
}

TEST(Lifecycle, WhatAListenerThrowsStaysInside) {
    ControlBench bench;
    bench.web->PropertyChanged = [](const Text&) { throw 1; };
    bench.web->events.ListenToAll([](EventBase&, std::span<const ArgumentRef>) { throw 1; });
    Text error;
    bench.web->ToolbarVisible(true);
    EXPECT_TRUE(bench.web->ToolbarVisible());
    bench.web->Resize();
    EXPECT_TRUE(bench.web->ButtonAdd("Mine", "a.bmp", "", error));
    EXPECT_FALSE(bench.web->PressChild("cmdHome"));
    bench.web->StopPressed(true);
    bench.web->StopShow("x");
    EXPECT_FALSE(bench.web->StopPressed()) << "what follows the layout is done";
    EXPECT_TRUE(bench.web->LoadURL("about:other", error));
    bench.Clock().Advance(500);
    EXPECT_FALSE(bench.web->Busy());
}

TEST(Lifecycle, ListenersMayGoWhileTheyAreCalled) {
    ControlBench bench;
    int heard = 0, token = 0;
    token = bench.web->events.StatusTextChange.Listen([&](Text&) {
        ++heard;
        bench.web->events.StatusTextChange.End(token);
    });
    bench.web->Resize();
    bench.web->Resize();
    EXPECT_EQ(heard, 1);
}

TEST(AboutBoxes, StandUntilOkIsPressed) {
    using Verb = UserStep::Verb;
    ControlBench bench;
    bench.platform.Display().Area({0, 0, 6000, 5000});
    bench.user.Queue("frmOstrelBaseAbout", {{Verb::Look, "lblVersion.caption", {}},
                                            {Verb::Look, "left", {}},
                                            {Verb::Look, "top", {}},
                                            {Verb::Click, "cmdOK", {}},
                                            {Verb::Look, "caption", {}}});
    bench.web->ShowOstrelAboutBox("Desk", 2, 3, 4, "1 May 2001", "", "", -50, 9000);
    const auto seen = bench.user.TakeSeen();
    ASSERT_EQ(seen.size(), 3u);
    EXPECT_EQ(std::get<Text>(std::get<FieldValue>(seen[0].value)), "Version 2.3.4");
    EXPECT_EQ(std::get<Long>(std::get<FieldValue>(seen[1].value)), 600);
    EXPECT_EQ(std::get<Long>(std::get<FieldValue>(seen[2].value)), 0);
    bench.web->ShowAboutBox();
    EXPECT_EQ(bench.user.TakeShown(), (Lines{"frmOstrelBaseAbout", "frmOstrelBaseAbout"}));
}

} // namespace
} // namespace ostrel::test

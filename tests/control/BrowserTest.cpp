#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

TEST(Navigation, TellsALoadInItsOrder) {
    ControlBench bench;
    bench.Settle();
    bench.Files().Add("C:\\d\\a.htm", "<HTML><TITLE>Page A</TITLE></HTML>");
    Text error = "old";
    EXPECT_TRUE(bench.web->LoadURL("C:\\d\\a.htm", error));
    EXPECT_EQ(error, "");
    EXPECT_TRUE(bench.Take().empty()) << "nothing from inside the call";
    EXPECT_TRUE(bench.web->Busy());
    bench.Clock().Advance(0);
    EXPECT_EQ(bench.Take(), (Lines{"BeforeNavigate2 C:\\d\\a.htm  False", "DownloadBegin",
                                   "StatusTextChange Opening page C:\\d\\a.htm...", "ProgressChange 100",
                                   "NavigateComplete2 C:\\d\\a.htm", "TitleChange Page A",
                                   "ForwardState False", "BackState True", "StatusTextChange done",
                                   "DocumentComplete C:\\d\\a.htm Page A", "DownloadComplete"}));
    EXPECT_EQ(bench.web->View().txtURL.text, "C:\\d\\a.htm");
    EXPECT_EQ(bench.web->LocationName(), "Page A");
    EXPECT_EQ(bench.web->ReadyState(), 4);
    EXPECT_FALSE(bench.web->Busy());
    bench.Clock().Advance(1000);
    EXPECT_TRUE(bench.Take().empty()) << "the clock's timer ends with the document";
    EXPECT_EQ(bench.web->ClockTime(), "1.0") << "the clock itself counts on";
}

TEST(Navigation, ThePageOnViewIsNotLoadedAgain) {
    ControlBench bench;
    bench.Settle();
    Text error;
    EXPECT_TRUE(bench.web->LoadURL("about:blank", error));
    EXPECT_TRUE(bench.Pane().TakeLog().empty());
    bench.Clock().Advance(150);
    EXPECT_EQ(bench.Take(), Lines{"DownloadTime 0.1"});
}

TEST(Navigation, RefusesWhatIsNotDefined) {
    ControlBench bench;
    bench.Settle();
    Text error;
    EXPECT_FALSE(bench.web->LoadURL("", error));
    EXPECT_EQ(error, "No URL defined.");
    EXPECT_FALSE(bench.web->LoadURLToTarget("", "", error));
    EXPECT_EQ(error, "No URL defined.");
    EXPECT_FALSE(bench.web->LoadURLToTarget("a", "", error));
    EXPECT_EQ(error, "No Target defined.");
    bench.Clock().Advance(500);
    EXPECT_TRUE(bench.Take().empty());
}

TEST(Navigation, AListenerCancels) {
    ControlBench bench;
    bench.Settle();
    bench.Files().Add("C:\\a.htm", "x");
    bench.web->events.BeforeNavigate2.Listen([](Text&, Text&, Flag& cancel) { cancel = true; });
    Text error;
    bench.web->LoadURL("C:\\a.htm", error);
    bench.Clock().Advance(0);
    EXPECT_EQ(bench.Take(), Lines{"BeforeNavigate2 C:\\a.htm  True"});
    EXPECT_TRUE(bench.web->ToolbarButtonEnabled("stop"));
    EXPECT_FALSE(bench.web->ToolbarButtonEnabled("refresh"));
    EXPECT_EQ(bench.web->LocationURL(), "about:blank");
}

TEST(Navigation, CancelStopsPaneAndLoops) {
    ControlBench bench;
    bench.Settle();
    bench.Files().Add("C:\\a.htm", Text(1'000'000, 'x'));
    Text error;
    bench.web->LoadURL("C:\\a.htm", error);
    bench.web->events.ProgressChange.Listen([&](Single&) { bench.web->Cancel(); });
    bench.Clock().Advance(0);
    EXPECT_EQ(bench.Take(), (Lines{"BeforeNavigate2 C:\\a.htm  False", "DownloadBegin",
                                   "StatusTextChange Opening page C:\\a.htm...", "StatusTextChange Cancel...",
                                   "ProgressChange 26.2143993377686", "DownloadComplete"}));
    EXPECT_TRUE(bench.web->Around().run.StopRequested);
    EXPECT_FALSE(bench.web->StopPressed());
    EXPECT_FALSE(bench.web->Busy());
}

TEST(Navigation, HistoryGoesBackAndForward) {
    ControlBench bench;
    for (const char* name : {"a", "b", "c"})
        bench.Files().Add(Text("C:\\") + name + ".htm", Text("<title>") + name + "</title>");
    bench.Settle();
    Text error;
    const auto go = [&](auto step) {
        step();
        bench.Clock().Advance(0);
        Text states;
        for (const Text& line : bench.Take())
            if (line.find("State") != Text::npos) states += line + ";";
        return bench.web->LocationName() + " " + states;
    };
    EXPECT_EQ(go([&] { bench.web->LoadURL("C:\\a.htm", error); }), "a ForwardState False;BackState True;");
    EXPECT_EQ(go([&] { bench.web->LoadURL("C:\\b.htm", error); }), "b ");
    EXPECT_EQ(go([&] { bench.web->GoBack(); }), "a ForwardState True;");
    EXPECT_TRUE(bench.web->ToolbarButtonEnabled("forward"));
    EXPECT_EQ(go([&] { bench.web->GoBack(); }), "about:blank BackState False;");
    EXPECT_FALSE(bench.web->ToolbarButtonEnabled("back"));
    EXPECT_EQ(go([&] { bench.web->GoBack(); }), "about:blank ");
    EXPECT_EQ(go([&] { bench.web->GoForward(); }), "a BackState True;");
    EXPECT_EQ(go([&] { bench.web->LoadURL("C:\\c.htm", error); }), "c ForwardState False;");
    EXPECT_EQ(go([&] { bench.web->GoForward(); }), "c ");
    EXPECT_EQ(go([&] { bench.web->GoBack(); }), "a ForwardState True;");
}

TEST(Navigation, RefreshWaitsForDone) {
    ControlBench bench;
    bench.Files().Add("C:\\a.htm", "<title>old</title>");
    Text error;
    bench.web->LoadURL("C:\\a.htm", error);
    bench.Settle();
    bench.Files().files["C:\\a.htm"] = "<title>new</title>";
    for (const Text title : {"TitleChange new", ""}) {
        bench.web->RefreshCompletely();
        EXPECT_TRUE(bench.web->ToolbarButtonEnabled("stop"));
        EXPECT_FALSE(bench.web->ToolbarButtonEnabled("refresh"));
        bench.Clock().Advance(0);
        Lines expected{"DownloadBegin",
                       "StatusTextChange Opening page C:\\a.htm...",
                       "ProgressChange 100",
                       title,
                       "RefreshComplete C:\\a.htm new",
                       "StatusTextChange done",
                       "DownloadComplete"};
        // The second time the progress and the title are the same as before.
        if (title.empty()) {
            std::erase(expected, "ProgressChange 100");
            std::erase(expected, "");
        }
        if (!title.empty()) std::erase(expected, "ProgressChange 100");
        EXPECT_EQ(bench.Take(), expected);
        EXPECT_FALSE(bench.web->ToolbarButtonEnabled("stop"));
        EXPECT_TRUE(bench.web->ToolbarButtonEnabled("refresh"));
    }
    bench.web->Refresh();
    bench.web->RefreshIfExpired();
    EXPECT_EQ(bench.Pane().Refreshes(RefreshLevel::Plain) * 100 +
                  bench.Pane().Refreshes(RefreshLevel::IfExpired) * 10 +
                  bench.Pane().Refreshes(RefreshLevel::Completely),
              112);
}

TEST(Navigation, FailuresLeaveThePageThatIsThere) {
    ControlBench bench;
    bench.Settle();
    for (const Text url : {"http://localhost/a.htm", "C:\\missing.htm", "C:\\temp", "mailto:a@b"}) {
        Text error;
        EXPECT_TRUE(bench.web->LoadURL(url, error));
        bench.Clock().Advance(0);
        EXPECT_EQ(bench.Take(), (Lines{"BeforeNavigate2 " + url + "  False", "DownloadBegin",
                                       "StatusTextChange Opening page " + url + "...",
                                       "StatusTextChange Can't open page " + url, "DownloadComplete"}));
        EXPECT_EQ(bench.web->LocationURL(), "about:blank");
        EXPECT_FALSE(bench.web->Busy());
    }
}

TEST(Navigation, InnerFramesAreNotHeard) {
    ControlBench bench;
    bench.Files().Add("C:\\d\\top.htm", "<title>T</title><FRAMESET><!-- <frame src=no.htm> -->"
                                        "<frame name='Left' src=\"left.htm\"><IFRAME SRC=sub/right.htm>");
    bench.Files().Add("C:\\d\\left.htm", "<iframe src='top.htm'>");
    bench.Files().Add("C:\\d\\sub\\right.htm", "right");
    bench.Files().Add("C:\\d\\other.htm", "other");
    bench.Settle();
    Text error;
    bench.web->LoadURL("file:///C:/d/top.htm", error);
    bench.Clock().Advance(0);
    Lines told = bench.Take();
    EXPECT_EQ(std::count(told.begin(), told.end(), "DocumentComplete file:///C:/d/top.htm T"), 1);
    EXPECT_EQ(told.size(), 11u);
    EXPECT_TRUE(bench.web->LoadURLToTarget("C:\\d\\other.htm", "left", error));
    bench.Clock().Advance(0);
    told = bench.Take();
    EXPECT_EQ(told.front(), "DownloadBegin");
    EXPECT_EQ(told.back(), "DownloadComplete");
    EXPECT_EQ(bench.web->LocationURL(), "file:///C:/d/top.htm");
    EXPECT_TRUE(bench.web->LoadURLToTarget("C:\\d\\other.htm", "nowhere", error));
    bench.Clock().Advance(0);
    EXPECT_EQ(bench.Take(), Lines{"NewWindow2"});
    EXPECT_EQ(bench.Pane().TakeWindows(), Lines{"C:\\d\\other.htm"});
}

TEST(PaneEvents, AreFilteredAndPassedOn) {
    ControlBench bench;
    bench.Settle();
    bench.Pane().Hold();
    bench.Pane().Report("u", "n", true, LoadState::Loaded);
    EXPECT_TRUE(bench.web->Busy());
    EXPECT_EQ(bench.web->ReadyState(), 2);
    BrowserSink& sink = *bench.Pane().Sink();
    struct Case {
        std::function<void()> raise;
        Lines expected;
    };
    for (const auto& [raise, expected] : std::vector<Case>{
             {[&] { sink.StatusTextChange("a"); }, {"StatusTextChange a"}},
             {[&] { sink.StatusTextChange("a"); }, {}},
             {[&] { sink.StatusTextChange("A"); }, {"StatusTextChange A"}},
             {[&] { sink.StatusTextChange("done"); }, {"StatusTextChange done"}},
             {[&] { sink.TitleChange("t"); }, {"TitleChange t"}},
             {[&] { sink.TitleChange("t"); }, {}},
             {[&] { sink.ProgressChange(0, 0); }, {}},
             {[&] { sink.ProgressChange(-1, 100); }, {}},
             {[&] { sink.ProgressChange(1, 3); }, {"ProgressChange 33.3333320617676"}},
             {[&] { sink.ProgressChange(1, 3); }, {}},
             {[&] { sink.ProgressChange(150, 100); }, {"ProgressChange 100"}},
             {[&] { sink.ProgressChange(2147483647, 1); }, {"ProgressChange 100"}},
             {[&] { sink.CommandStateChange(HistoryCommand::Forward, true); }, {"ForwardState True"}},
             {[&] { sink.CommandStateChange(HistoryCommand::Forward, true); }, {"ForwardState True"}},
             {[&] { sink.CommandStateChange(HistoryCommand{-1}, true); }, {}},
             {[&] { sink.NewWindow2(false); }, {}},
             {[&] { sink.NavigateComplete2("u", false); }, {}},
             {[&] { sink.DocumentComplete("u", false); }, {}},
             {[&] { bench.web->Refresh(); }, {}},
             {[&] { sink.StatusTextChange("DONE"); }, {"RefreshComplete u n", "StatusTextChange DONE"}},
             {[&] { sink.StatusTextChange("done"); }, {"StatusTextChange done"}},
             {[&] { sink.DocumentComplete("v", true); }, {"DocumentComplete v n"}},
         }) {
        raise();
        EXPECT_EQ(bench.Take(), expected);
    }
    EXPECT_TRUE(bench.web->ToolbarButtonEnabled("stop")) << "the pane still says that it is busy";
}

TEST(PaneEvents, AListenerMayGoElsewhereAtEveryEvent) {
    const Lines moments{"BeforeNavigate2", "DownloadBegin",     "StatusTextChange",
                        "ProgressChange",  "NavigateComplete2", "TitleChange",
                        "BackState",       "DocumentComplete",  "DownloadComplete"};
    for (const Text& moment : moments) {
        ControlBench bench;
        bench.Files().Add("C:\\a.htm", "a");
        bench.Files().Add("C:\\b.htm", "b");
        bench.Settle();
        bool gone = false;
        bench.web->events.ListenToAll([&](EventBase& event, std::span<const ArgumentRef>) {
            Text error;
            if (event.Name() == moment && !std::exchange(gone, true)) bench.web->LoadURL("C:\\b.htm", error);
        });
        Text error;
        bench.web->LoadURL("C:\\a.htm", error);
        bench.Clock().Advance(0);
        const Lines told = bench.Take();
        const auto count = [&](const Text& line) { return std::count(told.begin(), told.end(), line); };
        EXPECT_EQ(count("DocumentComplete C:\\b.htm b.htm"), 1) << moment;
        EXPECT_EQ(count("DownloadBegin"), count("DownloadComplete")) << moment;
        EXPECT_EQ(bench.web->LocationURL(), "C:\\b.htm") << moment;
    }
}

TEST(PaneEvents, ANewControlFindsAFreshPane) {
    ControlBench bench;
    bench.Files().Add("C:\\a.htm", "a");
    Text error;
    bench.web->LoadURL("C:\\a.htm", error);
    bench.Clock().Advance(0);
    bench.web->LoadURL("about:blank", error);
    bench.web.reset();
    bench.Clock().Advance(1000);
    EXPECT_EQ(bench.log.back(), "StatusTextChange Web Help - Terminate");
    OstrelWebHelp next(bench.platform);
    EXPECT_FALSE(next.Offline());
    EXPECT_TRUE(next.GoBack());
    bench.Clock().Advance(0);
    EXPECT_EQ(next.LocationURL(), "about:blank") << "there is nothing to go back to";
}

} // namespace
} // namespace ostrel::test

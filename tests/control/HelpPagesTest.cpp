#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

class HelpPages : public testing::Test {
protected:
    HelpPages() {
        bench.Files().Add("C:\\help\\a.htm", "<title>A</title>");
        bench.Files().Add("C:\\help\\b.htm", "<title>B</title>");
        bench.web->DirectoryHelp("C:\\help");
        bench.Settle();
    }
    /// What was told of help pages and documents.
    Lines Pages() {
        Lines pages;
        for (const Text& line : bench.Take())
            if (line.starts_with("HelpPage") || line.starts_with("DocumentComplete")) pages.push_back(line);
        return pages;
    }
    bool Load(const Text& page) { return bench.web->HelpPageLoad(page, error); }

    ControlBench bench;
    Text error;
};

TEST_F(HelpPages, LoadBehindTheDelay) {
    EXPECT_TRUE(Load("a.htm"));
    EXPECT_EQ(bench.web->HelpPageNext(), "C:\\help\\a.htm");
    bench.Clock().Advance(199);
    EXPECT_TRUE(bench.Take().empty());
    bench.Clock().Advance(1);
    const Lines told = bench.Take();
    EXPECT_EQ(told[0], "HelpPageBegin C:\\help\\a.htm");
    EXPECT_EQ(told[1], "BeforeNavigate2 C:\\help\\a.htm  False");
    EXPECT_EQ(told[told.size() - 2], "HelpPageComplete C:\\help\\a.htm A");
    EXPECT_EQ(bench.web->HelpPageNext(), "");
    EXPECT_EQ(bench.web->HelpPageCurrent(), "C:\\help\\a.htm");
    EXPECT_TRUE(Load("a.htm"));
    bench.Clock().Advance(1000);
    EXPECT_TRUE(bench.Take().empty()) << "it is there already";
}

TEST_F(HelpPages, OnlyTheLastRequestLoads) {
    Load("a.htm");
    bench.Clock().Advance(150);
    Load("a.htm"); // does not start the count afresh
    bench.Clock().Advance(50);
    EXPECT_EQ(Pages(), (Lines{"HelpPageBegin C:\\help\\a.htm", "HelpPageComplete C:\\help\\a.htm A"}));
    Load("a.htm");
    Load("b.htm");
    bench.Clock().Advance(150);
    Load("c.htm");
    bench.Clock().Advance(150);
    Load("b.htm");
    bench.Clock().Advance(199);
    EXPECT_TRUE(Pages().empty());
    bench.Clock().Advance(1);
    EXPECT_EQ(Pages(), (Lines{"HelpPageBegin C:\\help\\b.htm", "HelpPageComplete C:\\help\\b.htm B"}));
}

TEST_F(HelpPages, AreRefusedWithASentence) {
    struct Case {
        Text page, directory, remote;
        bool isRemote;
        Text error;
    };
    for (const auto& c : std::vector<Case>{
             {"", "C:\\help", "", false, "No Help Page defined."},
             {"x\\a.htm", "C:\\help", "", false, "Help Page must not be a full path."},
             {"x/a.htm", "", "http://h", true, "Help Page must not be a full path."},
             {"a.htm", "", "", false, "Property [DirectoryHelp] has not been defined."},
             {"a.htm", "C:\\none", "", false, "Property [DirectoryHelp] [C:\\none] does not exist."},
             {"a.htm", "C:\\help", "", true, "Property [DirectoryHelpRemote] has not been defined."},
         }) {
        bench.web->DirectoryHelp(c.directory);
        bench.web->DirectoryHelpRemote(c.remote);
        bench.web->HelpRemote(c.isRemote);
        EXPECT_FALSE(Load(c.page));
        EXPECT_EQ(error, c.error);
    }
    EXPECT_EQ(bench.web->HelpPageNext(), "");
    bench.Clock().Advance(500);
    EXPECT_TRUE(bench.Take().empty());
}

TEST_F(HelpPages, RemoteOnesFollowTheFormOfTheirDirectory) {
    bench.web->HelpRemote(true);
    for (const auto& [directory, location] :
         std::vector<std::pair<Text, Text>>{{"http://h/d", "http://h/d/a.htm"},
                                            {"http://h/d/", "http://h/d/a.htm"},
                                            {"share", "share\\a.htm"},
                                            {"share\\", "share\\a.htm"}}) {
        bench.web->DirectoryHelpRemote(directory);
        EXPECT_TRUE(Load("a.htm"));
        EXPECT_EQ(bench.web->HelpPageNext(), location);
    }
}

TEST_F(HelpPages, ALinkInsideAHelpPageCompletesAsOne) {
    Load("a.htm");
    bench.web->HelpPageLoadNow();
    bench.Clock().Advance(0);
    bench.Take();
    bench.Pane().Navigate("C:\\help\\b.htm");
    bench.Clock().Advance(0);
    EXPECT_EQ(Pages(), Lines{"HelpPageComplete C:\\help\\b.htm B"});
    EXPECT_EQ(bench.web->HelpPageCurrent(), "C:\\help\\b.htm");
    bench.web->LoadURL("C:\\help\\a.htm", error);
    bench.Clock().Advance(0);
    EXPECT_EQ(Pages(), Lines{"DocumentComplete C:\\help\\a.htm A"});
    EXPECT_EQ(bench.web->HelpPageCurrent(), "C:\\help\\b.htm");
}

TEST_F(HelpPages, LoadNowNeedsAnArmedLoad) {
    bench.web->HelpPageLoadNow();
    EXPECT_TRUE(bench.Take().empty());
    bench.web->HelpDelay(0);
    EXPECT_TRUE(Load("a.htm"));
    EXPECT_EQ(bench.web->HelpPageNext(), "C:\\help\\a.htm");
    bench.web->HelpPageLoadNow();
    bench.Clock().Advance(10'000);
    EXPECT_TRUE(bench.Take().empty()) << "without a delay the timer never runs";
}

TEST_F(HelpPages, ALoadMadeByTheListenerStaysArmed) {
    bench.web->events.HelpPageBegin.Listen([&](Text& url) {
        if (url == "C:\\help\\a.htm") Load("b.htm");
        url = "changed";
    });
    Load("a.htm");
    bench.Clock().Advance(200);
    EXPECT_EQ(bench.web->HelpPageCurrent(), "C:\\help\\a.htm");
    EXPECT_EQ(bench.web->HelpPageNext(), "C:\\help\\b.htm");
    bench.Clock().Advance(200);
    EXPECT_EQ(bench.web->HelpPageCurrent(), "C:\\help\\b.htm");
}

TEST_F(HelpPages, InternalOnesGoThroughWorkFiles) {
    bench.web->HelpRobots("Follow");
    bench.web->WorkFileNext(9);
    EXPECT_FALSE(bench.web->HelpPageLoadInternal(error));
    EXPECT_EQ(error, "No Help Page defined.");
    bench.web->HelpPart2("<P>Hello</P>");
    for (const Text file : {"C:\\help\\$$OstrelWH9.html", "C:\\help\\$$OstrelWH0.html"}) {
        EXPECT_TRUE(bench.web->HelpPageLoadInternal(error)) << error;
        EXPECT_EQ(bench.web->HelpPageNext(), file);
        EXPECT_EQ(bench.web->HelpRobots(), "Follow");
        const Text& written = bench.Files().files[file];
        EXPECT_EQ(written, bench.web->HelpPageInternal());
        EXPECT_NE(written.find("NoIndex"), Text::npos);
        EXPECT_NE(written.find("<P>Hello</P>"), Text::npos);
        bench.web->HelpPageLoadNow();
        bench.Clock().Advance(0);
        EXPECT_EQ(bench.web->HelpPageCurrent(), file);
    }
    EXPECT_EQ(bench.web->WorkFileNext(), 1);
    bench.web->WorkFileRoot("none\\such");
    EXPECT_FALSE(bench.web->HelpPageLoadInternal(error));
    EXPECT_TRUE(error.starts_with("Help Page can't be loaded - ")) << error;
    bench.web->HelpRemote(true);
    bench.web->DirectoryHelp("");
    EXPECT_FALSE(bench.web->HelpPageLoadInternal(error));
    EXPECT_EQ(error, "Property [DirectoryHelp] has not been defined.");
}

TEST_F(HelpPages, ExistInTheHelpDirectoryOnly) {
    bench.web->HelpRemote(true);
    EXPECT_TRUE(bench.web->HelpPageExists("a.htm"));
    EXPECT_FALSE(bench.web->HelpPageExists("none.htm"));
    EXPECT_FALSE(bench.web->HelpPageExists(""));
}

TEST_F(HelpPages, HomeAndIndexGoTwoWays) {
    bench.web->HomePage("a.htm");
    bench.web->IndexPage("C:\\help\\b.htm");
    bench.web->ButtonClick("home");
    bench.Clock().Advance(200);
    EXPECT_EQ(Pages(), (Lines{"HelpPageBegin C:\\help\\a.htm", "HelpPageComplete C:\\help\\a.htm A"}));
    bench.web->ButtonClick("home");
    bench.Clock().Advance(200);
    EXPECT_EQ(Pages().size(), 2u) << "loaded again, though it is the current one";
    bench.web->ButtonClick("index");
    bench.Clock().Advance(0);
    EXPECT_EQ(Pages(), Lines{"DocumentComplete C:\\help\\b.htm B"});
    bench.web->HomePage("");
    bench.web->IndexPage("");
    bench.Pane().Hold();
    bench.Pane().TakeLog();
    bench.web->ButtonClick("index");
    bench.web->ButtonClick("home");
    const auto asked = bench.Pane().TakeLog();
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].name, "GoHome");
}

} // namespace
} // namespace ostrel::test

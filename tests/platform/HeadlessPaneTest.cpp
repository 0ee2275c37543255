#include <gtest/gtest.h>

#include "platform/headless/HeadlessPane.h"
#include "platform/headless/VirtualClock.h"
#include "support/MemoryFiles.h"

namespace ostrel::test {
namespace {

/// Writes down every event, those of inner frames with a mark.
struct NotingSink final : BrowserSink {
    void BeforeNavigate2(Text& url, Text& target, Flag& cancel, bool top) override {
        Note("Before " + url + (target.empty() ? "" : " in " + target), top);
        if (url == refused) cancel = true;
    }
    void NavigateComplete2(const Text& url, bool top) override { Note("Navigated " + url, top); }
    void DocumentComplete(const Text& url, bool top) override { Note("Complete " + url, top); }
    void NewWindow2(bool) override { Note("Window", true); }
    void CommandStateChange(HistoryCommand, bool) override {}
    void ProgressChange(Long, Long) override { ++progress; }
    void StatusTextChange(const Text&) override {}
    void TitleChange(const Text& text) override { title = text; }
    void DownloadBegin() override { Note("Begin", true); }
    void DownloadComplete() override { Note("End", true); }
    void Note(const Text& line, bool top) { log.push_back(top ? line : "  " + line); }

    std::vector<Text> log;
    Text title, refused;
    int progress = 0;
};

class HeadlessPaneTest : public testing::Test {
protected:
    HeadlessPaneTest() { pane.Listen(&sink); }
    std::vector<Text> Load(const Text& url, const Text& target = {}) {
        sink.log.clear();
        if (target.empty())
            pane.Navigate(url);
        else
            pane.Navigate(url, target);
        clock.Advance(0);
        return sink.log;
    }

    VirtualClock clock;
    MemoryFiles files;
    NotingSink sink;
    HeadlessPane pane{clock, files};
};

TEST_F(HeadlessPaneTest, FramesAreInnerDocuments) {
    files.Add("C:\\d\\top.htm", "<frame name=L src=l.htm><frame src='gone.htm'><FRAME SRC=\"no.htm\">");
    files.Add("C:\\d\\l.htm", "<iframe src='sub/deep.htm'>");
    files.Add("C:\\d\\sub\\deep.htm", "deep");
    files.Add("C:\\d\\no.htm", "refused");
    sink.refused = "C:\\d\\no.htm";
    EXPECT_EQ(Load("C:\\d\\top.htm"),
              (std::vector<Text>{"Before C:\\d\\top.htm", "Begin", "Navigated C:\\d\\top.htm",
                                 "  Before C:\\d\\l.htm in L", "  Navigated C:\\d\\l.htm",
                                 "  Before C:\\d\\sub\\deep.htm", "  Navigated C:\\d\\sub\\deep.htm",
                                 "  Complete C:\\d\\sub\\deep.htm", "  Complete C:\\d\\l.htm",
                                 "  Before C:\\d\\gone.htm", "  Before C:\\d\\no.htm",
                                 "Complete C:\\d\\top.htm", "End"}));
    EXPECT_EQ(
        Load("C:\\d\\sub\\deep.htm", "l"),
        (std::vector<Text>{"  Before C:\\d\\sub\\deep.htm in l", "Begin", "  Navigated C:\\d\\sub\\deep.htm",
                           "  Complete C:\\d\\sub\\deep.htm", "End"}));
    EXPECT_EQ(Load("C:\\d\\l.htm", "_top").front(), "Before C:\\d\\l.htm in _top");
    EXPECT_EQ(Load("C:\\d\\l.htm", "_blank"), std::vector<Text>{"Window"});
}

TEST_F(HeadlessPaneTest, FramesWithoutEndStaySmall) {
    Text page = "<title>t</title>";
    for (int i = 0; i < 500; ++i) page += "<iframe src=self.htm></iframe><iframe ";
    files.Add("C:\\self.htm", page);
    EXPECT_LT(Load("C:\\self.htm").size(), 300u);
    EXPECT_EQ(sink.log.back(), "End");
    page.clear();
    for (int i = 0; i < 200'000; ++i) page += "<iframe <!- <title ";
    for (const char* end : {"", ">", "-->"}) {
        files.Add("C:\\open.htm", page + end);
        EXPECT_EQ(Load("C:\\open.htm").back(), "End") << end;
    }
}

TEST_F(HeadlessPaneTest, ReadsTheTitleOutOfThePage) {
    struct Row {
        Text html, title;
    };
    for (const auto& [html, title] : std::vector<Row>{
             {"<TITLE>  Sales\r\n &amp; more\t&#8364; &lt;&#x41;&gt; &unknown; &</TITLE>",
              "Sales & more \x80 <A> &unknown; &"},
             {"<title lang=en>a</title><title>b</title>", "a"},
             {"<titles>no</titles>", "t.htm"},
             {"<title></title>", "t.htm"},
             {"<title>unclosed", "unclosed"},
             {"<title", "t.htm"},
             {"", "t.htm"},
         }) {
        files.Add("C:\\t.htm", html);
        Load("C:\\t.htm");
        EXPECT_EQ(pane.LocationName(), title) << html;
    }
}

TEST_F(HeadlessPaneTest, FileAddressesAreLocal) {
    files.Add("C:\\a b\\\xE4#1.htm", "x");
    for (const Text url : {"file:///C:/a%20b/%E4%231.htm", "FILE://C:/a b/\xE4%231.htm?q#f",
                           "C:\\a b\\\xE4#1.htm", "file:C:/a%20b/%e4%231.htm"}) {
        EXPECT_EQ(Load(url).size(), 5u) << url;
        EXPECT_EQ(pane.LocationURL(), url);
    }
}

TEST_F(HeadlessPaneTest, LargePagesComeInChunks) {
    files.Add("C:\\big.htm", "<title>big</title>" + Text(1'000'000, 'x'));
    Load("C:\\big.htm");
    EXPECT_EQ(sink.progress, 4);
    EXPECT_EQ(sink.title, "big");
}

TEST_F(HeadlessPaneTest, AReadThatFailsEndsTheLoad) {
    files.Add("C:\\a.htm", Text(400'000, 'x'));
    Load("C:\\a.htm");
    // The first call only asks whether the file is there, and is made again without the "#".
    const int calls = files.calls;
    for (int nth = 2; nth <= calls; ++nth) {
        files.calls = 0;
        files.failAt = nth;
        const auto log = Load("C:\\a.htm");
        EXPECT_EQ(log.back(), "End");
        EXPECT_EQ(std::count(log.begin(), log.end(), "Complete C:\\a.htm"), 0) << nth << " of " << calls;
        EXPECT_FALSE(pane.Busy());
    }
}

TEST_F(HeadlessPaneTest, PrintsToAListAndGivesTheBody) {
    files.Add("C:\\a.htm", "<html><BODY bgcolor=red><b>Hi</b> there</BODY></html>");
    Load("C:\\a.htm");
    pane.ExecWB(PaneCommand::Print, PaneCommandOption::DontPromptUser);
    pane.ExecWB(PaneCommand::Copy, PaneCommandOption::Default);
    EXPECT_EQ(pane.TakePrinted(), std::vector<Text>{"C:\\a.htm"});
    EXPECT_EQ(pane.DocumentText("innerhtml"), "<b>Hi</b> there");
    EXPECT_EQ(pane.DocumentText("outerhtml"), "<BODY bgcolor=red><b>Hi</b> there</BODY>");
    EXPECT_EQ(pane.DocumentText("innertext"), "Hi there");
    EXPECT_EQ(pane.DocumentText("other"), "");
}

TEST_F(HeadlessPaneTest, HeldItOnlyNotes) {
    pane.Navigate("C:\\a.htm");
    pane.Hold();
    pane.Navigate("C:\\b.htm", "t");
    pane.GoBack();
    pane.Stop();
    pane.Refresh2(RefreshLevel::Completely);
    pane.ExecWB(PaneCommand::Print, PaneCommandOption::DontPromptUser);
    clock.Advance(100);
    EXPECT_TRUE(sink.log.empty());
    Text asked;
    for (const PaneCall& call : pane.TakeLog()) asked += call.name + std::to_string(call.arguments.size());
    EXPECT_EQ(asked, "Navigate1Navigate2GoBack0Stop0Refresh21ExecWB2");
    EXPECT_TRUE(pane.TakePrinted().empty());
    pane.Report("u", {}, true, {});
    pane.Report({}, "n", {}, LoadState::Loading);
    EXPECT_EQ(pane.LocationURL() + pane.LocationName(), "un");
    EXPECT_TRUE(pane.Busy());
    EXPECT_EQ(pane.ReadyState(), LoadState::Loading);
}

} // namespace
} // namespace ostrel::test

#include <gtest/gtest.h>

#include <limits>

#include "platform/headless/VirtualClock.h"
#include "tablepages/ReportHost.h"

namespace ostrel::test {

namespace {

void Small(ReportHost& host) {
    host.Table({"A", "B"}, {{"b", "1"}, {"a", "2"}});
    host.Options().PageTableColumnSort.Put(1, true);
}

/// The events that tell the course of a run, without the building of each page.
std::vector<Text> Course(const ReportHost& host) {
    std::vector<Text> course;
    for (const Text& line : host.heard)
        if (line.find("InternalBuild") == Text::npos && !line.starts_with("PageCreateBody"))
            course.push_back(line);
    return course;
}

} // namespace

TEST(ReportRun, ChecksComeInOrder) {
    struct Row {
        Text path;
        Grid<Text> cells;
        bool made;
        Text error;
    };
    for (const auto& [path, cells, made, error] : std::vector<Row>{
             {"report.htm", {}, false, "Property [DirectoryHelp] has not been defined."},
             {"C:\\out\\r.htm", Grid<Text>(0, 0), false, "No Rows in Table"},
             {"C:\\out\\r.htm", Grid<Text>(2, 0), false, "No Columns in Table"},
             {"C:\\out\\r.htm", {{"", " "}, {"0.00", "0"}}, false, "No Data in Table"},
             {"", {{"", "x"}}, true, "as it was"},
         }) {
        ReportHost host;
        host.Table({"A", "B"}, cells);
        host.filePath = path;
        host.error = "as it was";
        host.Options().PageTableIgnoreBlankColumns = true;
        EXPECT_EQ(host.Make(), made) << error;
        EXPECT_EQ(host.error, error);
        EXPECT_TRUE(host.files->files.empty());
    }
}

TEST(ReportRun, EventsOfFreshAndStalePages) {
    ReportHost host;
    Small(host);
    ASSERT_TRUE(host.Make());
    host.Options().PageTableCreateAll = false;
    host.files->files.erase("C:\\out\\report_1_U.htm");
    host.Hear();
    ASSERT_TRUE(host.Make());
    const Text main = std::to_string(host.Page("report.htm").size());
    const Text up = std::to_string(host.Page("report_1_U.htm").size());
    const Text down = std::to_string(host.Page("report_1_D.htm").size());
    EXPECT_EQ(Course(host), (std::vector<Text>{
                                "PageCreateProgress [Starting] [0]",
                                "PageCreateTableTitle [Main] [Sales] [] [Record Number] [True] [0]",
                                "PageCreateProgress [Formatting] [0]",
                                "PageCreateProgress [Creating Table] [0]",
                                "PageCreateProgress [Saving Page] [0]",
                                "PageCreated [C:\\out\\report.htm]",
                                "PageCreated2 [C:\\out\\report.htm] [False] [False] [" + main + "]",
                                "PageCreateProgress [Setting up Sort] [0]",
                                "PageCreateProgress [Sorting Up - A] [0]",
                                "PageCreateTableTitle [Sort] [Sales] [] [A] [True] [0]",
                                "PageCreateProgress [Sorting Strings] [0]",
                                "SortProgress [Sort Started] [0]",
                                "SortProgress [...Sorting] [1]",
                                "SortProgress [Sort Finished] [1]",
                                "PageCreateProgress [Creating Page - A] [0]",
                                "PageCreateProgress [Creating Table - A] [0]",
                                "PageCreateProgress [Saving Page - A] [0]",
                                "StatusTextChange [Slow]",
                                "PageCreated [C:\\out\\report_1_U.htm]",
                                "PageCreated2 [C:\\out\\report_1_U.htm] [True] [False] [" + up + "]",
                                "StatusTextChange [Quick]",
                                "PageCreated [C:\\out\\report_1_D.htm]",
                                "PageCreated2 [C:\\out\\report_1_D.htm] [False] [False] [" + down + "]",
                                "PageCreateProgress [Finished] [0]",
                            }));
}

TEST(ReportRun, DownPageAloneHasNoRows) {
    ReportHost host;
    Small(host);
    ASSERT_TRUE(host.Make());
    host.Options().PageTableCreateAll = false;
    host.files->files.erase("C:\\out\\report_1_D.htm");
    ASSERT_TRUE(host.Make());
    const Text page = host.Page("report_1_D.htm");
    EXPECT_EQ(page.find(";a&"), Text::npos);
    EXPECT_NE(page.find("report_1_U.htm"), Text::npos);
    EXPECT_EQ(page.find("<B>B</B>"), Text::npos) << "only the sorted column's header stands";
}

TEST(ReportRun, ChangedMainPageRenewsItsSortPages) {
    ReportHost host;
    Small(host);
    ASSERT_TRUE(host.Make());
    host.Options().PageTableCreateAll = false;
    host.cells.Put(1, 2, "3");
    ASSERT_TRUE(host.Make());
    EXPECT_NE(host.Page("report_1_D.htm").find(";3&"), Text::npos);
}

TEST(ReportRun, ProgressComesOnceAHundredRecords) {
    ReportHost host;
    host.Table({"A"}, Grid<Text>(250, 1));
    host.Options().PageTableColumnRecord = 1;
    for (Long row = 1; row <= 250; ++row) host.cells.Put(row, 1, row == 101 ? "100.2" : "1.1");
    host.Hear();
    ASSERT_TRUE(host.Make());
    EXPECT_EQ(std::count(host.heard.begin(), host.heard.end(), "PageCreateProgress [Formatting] [100]"), 1);
    EXPECT_EQ(std::count(host.heard.begin(), host.heard.end(), "PageCreateProgress [Formatting] [200]"), 1);
}

// A stop at any event of the run ends it at the next test, or is too late; a page on disk is always whole.
// What the host wants holds for the next run as well.
TEST(ReportRun, StopAtEveryProgressEvent) {
    for (Flag RunFlags::*const flag : {&RunFlags::StopPressed, &RunFlags::HostStop}) {
        int interrupted = 0;
        for (int at = 1;; ++at) {
            ReportHost host;
            host.Table({"A"}, Grid<Text>(250, 1));
            host.cells.Put(7, 1, "x");
            host.Options().PageTableColumnSort.Put(1, true);
            int left = at;
            bool finished = false;
            host.events.PageCreateProgress.Listen([&](Text& message, Long&) {
                if (--left == 0) host.run.*flag = true;
                finished = message == "Finished";
            });
            const bool made = host.Make();
            EXPECT_EQ(made, finished);
            EXPECT_EQ(host.error, made ? "" : "Interrupted by User");
            for (const auto& [path, content] : host.files->files) EXPECT_TRUE(content.ends_with("</HTML>"));
            interrupted += made ? 0 : 1;
            if (left > 0) break;
            EXPECT_EQ(host.Make(), flag == &RunFlags::StopPressed);
        }
        EXPECT_GE(interrupted, 8);
    }
}

// What waits for its turn gets as many of them in each phase, and Stop is heard in all.
TEST(ReportRun, StopInEveryTurn) {
    const auto run = [](int stopAt, std::vector<Text>* phases) {
        ReportHost host;
        host.Table({"A"}, Grid<Text>(120, 1));
        for (Long row = 1; row <= 120; ++row) host.cells.Put(row, 1, std::to_string(row));
        host.Options().PageTableColumnSort.Put(1, true);
        host.Options().PageTableAddSeparate = true;
        host.Options().PageTableAddExcel = true;
        host.Options().PageTableHeaderRepeat = true;
        auto clock = std::make_unique<VirtualClock>();
        int turns = 0, turnsOfPhase = 0;
        Text phase = "before";
        const auto end = [&] {
            const Text line = std::to_string(turnsOfPhase) + " " + phase;
            if (phases && (phases->empty() || phases->back() != line)) phases->push_back(line);
            turnsOfPhase = 0;
        };
        std::function<void()> turn = [&, queue = clock.get()] {
            ++turnsOfPhase;
            if (++turns == stopAt) host.run.StopPressed = true;
            queue->Post(turn);
        };
        clock->Post(turn);
        host.platform.clock = std::move(clock);
        host.events.PageCreateProgress.Listen([&](Text& message, Long&) {
            if (message.starts_with("InternalBuild")) return;
            end();
            phase = message;
        });
        const bool made = host.Make();
        end();
        return std::pair(made, turns);
    };
    std::vector<Text> phases;
    const auto [made, turns] = run(0, &phases);
    EXPECT_TRUE(made);
    EXPECT_EQ(phases, (std::vector<Text>{"0 before",
                                         "2 Saving to Excel",
                                         "1 Starting",
                                         "1 Formatting",
                                         "4 Formatting",
                                         "2 Creating Table",
                                         "0 Saving Page",
                                         "0 Setting up Sort",
                                         "1 Sorting Up - A",
                                         "7 Sorting Strings",
                                         "0 Creating Page - A",
                                         "3 Creating Table - A",
                                         "0 Saving Page - A",
                                         "1 Sorting Down - A",
                                         "7 Sorting Strings",
                                         "0 Creating Page - A",
                                         "3 Creating Table - A",
                                         "1 Saving Page - A",
                                         "10 Starting Separate Pages",
                                         "10 Saving Separate Pages",
                                         "0 Saving Separate Pages",
                                         "0 Finished"}));
    for (int at = 1; at <= turns; ++at) EXPECT_FALSE(run(at, nullptr).first) << at;
}

TEST(ReportRun, HostSortsByItself) {
    for (const bool sorts : {true, false}) {
        ReportHost host;
        Small(host);
        host.Options().PageTableColumnOrder.Put(1, "Length");
        Text type;
        host.events.SortExternal.Listen(
            [&](Long& count, Array<Text>& values, Array<Long>& pointers, Flag& up, Flag& sorted) {
                EXPECT_EQ(values, (Array<Text>{"b", "a"}));
                EXPECT_EQ(pointers.Count(), count);
                if (!up) return;
                pointers = {1, 2};
                sorted = sorts;
            });
        host.events.SortExternalFull.Listen(
            [&](Text& order, Long&, Array<Text>&, Array<Long>&, Flag& up, Flag& sorted) {
                type = order;
                EXPECT_EQ(sorted, sorts && up);
            });
        ASSERT_TRUE(host.Make());
        EXPECT_EQ(type, "Length");
        const Text page = host.Page("report_1_U.htm");
        EXPECT_EQ(page.find(";b&") < page.find(";a&"), sorts);
    }
}

TEST(ReportRun, MissingFilesAreToldOnceARow) {
    ReportHost host;
    Small(host);
    host.Options().PageTableColumnLink.Put(1, "gone");
    host.state.service.DirectoryHelp = "C:\\out";
    host.state.help.TestHyperlink = true;
    std::vector<Text> missing;
    host.events.HyperlinkMissing.Listen([&](Text& path) {
        if (path.find("gone") != Text::npos) missing.push_back(path);
    });
    ASSERT_TRUE(host.Make());
    EXPECT_EQ(missing, (std::vector<Text>{"C:\\out\\gone.B", "C:\\out\\gone.A"}));
}

TEST(ReportRun, ReportInsideAReport) {
    ReportHost host;
    Small(host);
    host.Options().PageTableColumnSort.Put(1, false);
    bool inner = false;
    host.events.PageCreateProgress.Listen([&](Text& message, Long&) {
        if (message != "Formatting" || inner) return;
        inner = true;
        host.filePath = "C:\\out\\inner.htm";
        EXPECT_TRUE(host.Make());
    });
    EXPECT_TRUE(host.Make());
    EXPECT_NE(host.Page("inner.htm").find(";a&"), Text::npos);
}

TEST(HeaderLinks, Limits) {
    HeaderLinks links;
    Text error = "old";
    for (int i = 0; i < 100; ++i) EXPECT_TRUE(links.Add({"n", "", "", true, 2, 16}, error));
    EXPECT_EQ(error, "");
    EXPECT_EQ(links.links.Get(1).positions, 15) << "none of the four means all";
    EXPECT_FALSE(links.Add({}, error));
    EXPECT_EQ(error, "Only 100 Header Links are allowed.");
    for (int i = 0; i < 50; ++i) EXPECT_TRUE(links.AddFormat({}));
    EXPECT_FALSE(links.AddFormat({}));
    EXPECT_EQ(links.MaxRow(), 2);
    links.Clear();
    EXPECT_EQ(links.MaxRow(), 0);
    EXPECT_EQ(links.show[0], false);
    EXPECT_EQ(links.show[1], true);
}

TEST(HeaderLinks, FarRowsStayWithinMemory) {
    ReportHost host;
    host.Table({"A"}, {{"x"}});
    host.Options().PageTableAddRight = Text(1'000'000, ' ');
    Text error;
    for (const Long row : {std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()})
        host.state.headerLinks.Add({"n", "", "", false, row, 0}, error);
    ASSERT_TRUE(host.Make());
    EXPECT_LT(host.Page("report.htm").size(), 80'000'000U);
}

} // namespace ostrel::test

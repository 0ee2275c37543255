#include <gtest/gtest.h>

#include "help/SearchRequest.h"
#include "help/SearchWorld.h"

namespace ostrel::help {

using test::SearchWorld;

TEST(Search, Masks) {
    struct Row {
        Text directory, searchMask, mask, error;
        std::size_t pages;
    };
    for (const auto& [directory, searchMask, mask, error, pages] : std::vector<Row>{
             {"C:\\pages", "*.htm*", "", "", 2},
             {"C:\\pages\\", "*.htm*", "b*.html", "", 1},
             {"", "", "C:\\pages\\*.HTM", "", 1},
             {"", "", "C:\\none\\*.htm", "", 0},
             {"C:\\pages", "", "", "No Mask has been specified.", 0},
             {"C:\\pages", "", "a/*.htm", "Help Page must not be a URL on the Internet.", 0},
             {"", "*.htm", "", "Property [DirectoryHelp] has not been defined.", 0},
             {"C:\\none", "*.htm", "", "Property [DirectoryHelp] [C:\\none] does not exist.", 0},
         }) {
        SearchWorld world;
        world.Add("a.htm", "One", "");
        world.Add("b.html", "Two", "");
        world.files->Add("C:\\pages\\c.txt", "");
        world.service.DirectoryHelp = directory;
        world.search.SearchMask = searchMask;
        EXPECT_EQ(world.Load(mask), error.empty()) << mask;
        EXPECT_EQ(world.error, error);
        EXPECT_EQ(world.store.pages->pages.size(), pages) << mask;
        EXPECT_EQ(world.store.loaded, error.empty());
    }
}

TEST(Search, Robots) {
    struct Row {
        Text content;
        bool ignored, found;
    };
    for (const auto& [content, ignored, found] : std::vector<Row>{
             {"index,follow", false, false},
             {"noindex", true, true},
             {" 1.5 ", false, true},
             {"", false, true},
         }) {
        SearchWorld world;
        world.search.SearchNoRobots = ignored;
        world.Add("a.htm", "Title", "text", "<META NAME=\"robots\" CONTENT=\"" + content + "\">");
        ASSERT_TRUE(world.Load());
        EXPECT_EQ(world.Found("text").size(), found ? 1u : 0u) << content;
    }
}

TEST(Search, ScoresAndOrder) {
    using Lines = std::vector<Text>;
    SearchWorld world;
    world.Add("a.htm", "Printers", "the cat sat, the cat");
    world.Add("b.htm", "apples", "a CAT <B>c</B>at");
    world.Add("c.htm", "Cat", "nothing");
    world.Add("d.htm", "Cat food", "cat", "<META NAME=\"Keywords\" CONTENT=\"cat cat cat cat\">");
    world.Add("e.htm", "Apples", "a cat and cat");
    ASSERT_TRUE(world.Load());
    EXPECT_EQ(world.Found("cat"),
              (Lines{"c.htm 100.0", "d.htm 44.4", "e.htm 22.2", "b.htm 22.2", "a.htm 22.2"}));
    EXPECT_EQ(world.Found("cat", true), (Lines{"e.htm 66.7", "a.htm 66.7", "b.htm 33.3", "d.htm 33.3"}));
    world.search.SearchTitle = false;
    EXPECT_EQ(world.Found("cat", false, true).front(), "c.htm 100.0");
    EXPECT_EQ(world.Found("sat", false, true), Lines{}) << "a comma is part of a word";
    world.search.SearchRemoveHTML = false;
    EXPECT_EQ(world.Found("<b>"), (Lines{"b.htm 50.0"}));
    world.search.SearchHeader = true;
    EXPECT_EQ(world.Found("keywords"), Lines{}) << "the body leaves the head aside";
    world.search.SearchBody = false;
    EXPECT_EQ(world.Found("keywords"), (Lines{"d.htm 50.0"}));
}

TEST(Search, ResultsPage) {
    SearchWorld world;
    world.search.SearchResultsLines = "2";
    EXPECT_FALSE(world.Search("x"));
    EXPECT_EQ(world.error, "No Help Pages have been loaded to search.");
    world.Add("a.htm", "One", "x & y");
    world.Add("b.htm", "Two x", "x x x");
    world.Add("c.htm", "Three", "x");
    world.Add("d.htm", "Four", "x x x x x x x");
    ASSERT_TRUE(world.Load());
    EXPECT_FALSE(world.Search(""));
    EXPECT_EQ(world.error, "No Search String has been entered.");

    EXPECT_TRUE(world.Search("X"));
    EXPECT_EQ(world.search.SearchResults, "<P>Searching for &quot;<B>X</B>&quot;</P>\r\n\r\n<P><UL>\r\n\r\n"
                                          "<LI><A HREF=\"b.htm\"><B>Two x</B></A></P> - 68.8&nbsp;%\r\n\r\n"
                                          "<LI><A HREF=\"d.htm\"><B>Four</B></A></P> - 43.8&nbsp;%\r\n\r\n"
                                          "</UL></P>\r\n\r\n<P><B>2</B> other matches were also found.</P>");
    world.search.SearchResultsLines = "all";
    EXPECT_TRUE(world.Search("y"));
    EXPECT_EQ(world.search.SearchResults,
              "<P>Searching for &quot;<B>y</B>&quot;</P>\r\n\r\n<P><UL>\r\n\r\n"
              "<LI><A HREF=\"a.htm\"><B>One</B></A></P> - 50.0&nbsp;%\r\n\r\n</UL></P>");
    EXPECT_TRUE(world.Search("z"));
    EXPECT_EQ(world.search.SearchResults, "<P>Searching for &quot;<B>z</B>&quot;</P>\r\n\r\n"
                                          "<P>No Matches found in <B>Help Pages</B>.</P>");
}

TEST(Search, Display) {
    SearchWorld world;
    Text page;
    EXPECT_FALSE(SearchDisplay(world.searchScope, page, world.error));
    EXPECT_EQ(world.error, "Property [SearchResults] has not been defined.");
    world.search.SearchPart1 = "\r\n<H1>Found</H1> ";
    world.search.SearchResults = "<P>results</P>\r\n";
    world.search.SearchPart3 = " ";
    world.help.HelpRobots = "all";
    world.service.WorkFileNext = 9;
    EXPECT_TRUE(SearchDisplay(world.searchScope, page, world.error));
    EXPECT_EQ(page, "C:\\pages\\work9.html");
    const Text content = world.Content(page);
    EXPECT_NE(content.find("CONTENT=\"NoIndex\""), Text::npos) << content;
    EXPECT_NE(content.find("<H1>Found</H1>\r\n\r\n<P>results</P>\r\n\r\n</"), Text::npos) << content;
    EXPECT_EQ(world.help.HelpRobots, "all");
    EXPECT_EQ(world.service.WorkFileNext, 0);

    world.files->directories.insert("C:\\pages\\work0.html");
    EXPECT_TRUE(SearchDisplay(world.searchScope, page, world.error));
    EXPECT_TRUE(world.error.starts_with("Help Page can't be saved - ")) << world.error;
    EXPECT_EQ(world.service.WorkFileNext, 1);
}

TEST(Search, PanelAndStops) {
    SearchWorld world;
    world.Add("a.htm", "A", "x");
    world.Add("b.htm", "B", "x");
    ASSERT_TRUE(world.Load());
    ASSERT_TRUE(world.Search("x"));
    EXPECT_EQ(world.panel.log,
              (std::vector<Text>{"Loading Help Pages", "gauge", "  a.htm", "  0.50", "  b.htm", "  1.00",
                                 "hidden", "Searching Help Pages", "gauge", "  0.50", "  1.00", "hidden"}));

    const Text results = world.search.SearchResults;
    world.panel.onGauge = [&](Single fraction) { world.run.StopPressed = fraction < 0.6f; };
    EXPECT_FALSE(world.Search("x"));
    EXPECT_EQ(world.error, "Loading of Help Pages Interrupted.");
    EXPECT_EQ(world.panel.log.back(), "hidden");
    EXPECT_EQ(world.search.SearchResults, results);
    EXPECT_TRUE(world.store.loaded);
    EXPECT_FALSE(world.Load());
    EXPECT_EQ(world.error, "Loading of Help Pages Interrupted.");
    EXPECT_EQ(world.panel.log.back(), "hidden");
    EXPECT_FALSE(world.store.loaded);
    EXPECT_TRUE(world.store.pages->pages.empty());
}

TEST(Search, OutlivesWhatRunsInItsYields) {
    SearchWorld world;
    for (char c = 'a'; c <= 'f'; ++c) world.Add(Text(1, c) + ".htm", "A title", "some x " + Text(100, c));
    ASSERT_TRUE(world.Load());
    int nested = 0;
    world.panel.onGauge = [&](Single) {
        if (++nested > 3) return;
        world.search.SearchRemoveHTML = !world.search.SearchRemoveHTML;
        world.Search("title");
        if (nested == 3) world.Load("d.htm");
        world.store.Clear();
    };
    EXPECT_TRUE(world.Search("x"));
    EXPECT_NE(world.search.SearchResults.find("f.htm"), Text::npos) << world.search.SearchResults;
    EXPECT_TRUE(world.Load());
    EXPECT_EQ(world.store.pages->pages.size(), 6u);
}

/// Files whose reads end early, fail or never end.
struct OddFiles : test::MemoryFiles {
    struct Endless : FileReader {
        FileResult Read(char* buffer, std::size_t size, std::size_t& count) override {
            std::fill_n(buffer, count = size, '<');
            return {};
        }
    };
    struct Broken : FileReader {
        FileResult Read(char*, std::size_t, std::size_t& count) override {
            count = 3;
            return {57, "Device I/O error"};
        }
    };
    FileResult Open(const Text& path, std::unique_ptr<FileReader>& reader) override {
        if (path.ends_with("endless.htm")) return reader = std::make_unique<Endless>(), FileResult{};
        if (path.ends_with("broken.htm")) return reader = std::make_unique<Broken>(), FileResult{};
        if (path.ends_with("locked.htm")) return {70, "Permission denied"};
        return MemoryFiles::Open(path, reader);
    }
};

TEST(Search, HostileFiles) {
    SearchWorld world;
    auto odd = std::make_unique<OddFiles>();
    world.files = odd.get();
    world.platform.files = std::move(odd);
    world.files->directories.insert("C:\\pages");
    for (const char* name : {"broken.htm", "endless.htm", "locked.htm"}) world.Add(name, "x", "x");
    world.files->Add("C:\\pages\\angles.htm", Text(1'000'000, '<'));
    world.files->Add("C:\\pages\\metas.htm",
                     "<HEAD>" + ReplaceAll(Text(100'000, 'm'), "m", "<META \">") + "</HEAD>");
    world.files->Add("C:\\pages\\open.htm", "<HEAD><TITLE>x<BODY>x");
    world.files->Add("C:\\pages\\empty.htm", "");
    world.Add("good.htm", "Good", "x");
    EXPECT_TRUE(world.Load({}, {.page = 2'000'000}));
    EXPECT_EQ(world.lastFileError, "") << "of the last page";
    EXPECT_EQ(world.store.pages->tooLarge, 1);
    EXPECT_EQ(world.Found("x"), std::vector<Text>{"good.htm 50.0"});

    EXPECT_TRUE(world.Load("*o*.htm", {.store = 600}));
    EXPECT_EQ(world.store.pages->tooLarge, 2) << "what follows good.htm is beyond the room";
    EXPECT_TRUE(world.Load("locked.htm"));
    EXPECT_EQ(world.lastFileError, "Permission denied");
}

TEST(Search, Requests) {
    for (const auto& [lines, item, back] : std::vector<std::tuple<Long, Long, Long>>{{-1, 1, 0},
                                                                                     {0, 1, 0},
                                                                                     {9, 1, 0},
                                                                                     {10, 2, 10},
                                                                                     {24, 2, 10},
                                                                                     {25, 3, 25},
                                                                                     {99, 3, 25},
                                                                                     {100, 4, 100},
                                                                                     {5000, 4, 100}}) {
        EXPECT_EQ(ShowItemOfLines(lines), item) << lines;
        EXPECT_EQ(LinesOfShowItem(item), back);
    }
    EXPECT_EQ(LinesOfShowItem(0) + LinesOfShowItem(5), 0);
    SearchProperties search;
    search.SearchRemotePrefix = "http://search/?q=";
    search.SearchRemoteSuffix = "&go";
    EXPECT_EQ(RemoteSearchAddress(search, "a b"), "http://search/?q=%22a%20b%22&go");
}

} // namespace ostrel::help

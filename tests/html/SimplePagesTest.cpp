#include "html/SimplePages.h"

#include <gtest/gtest.h>

#include "html/FontType.h"
#include "html/PageWorld.h"
#include "support/Golden.h"

namespace ostrel::html {
namespace {

const Text Path = "C:\\pages\\a.htm";

/// A world in which every property of a page says something.
class SimplePages : public ::testing::Test {
protected:
    SimplePages() {
        world.service.ProgramName = "Ostrel";
        PageProperties& page = world.page;
        page.PageAuthor = "Author";
        page.PageBackgroundColour = "#FFFFF0";
        page.PageCompany = "Company";
        page.PageDescription = "Description";
        page.PageKeywords = "a, b";
        page.PageLinkColour = "BLUE";
        page.PageMeta = "<META NAME=\"X\" CONTENT=\"Y\">";
        page.PageRobots = "noindex";
        page.PageFont = "<FONT FACE=\"Arial\">";
        page.PageFontSize = "2";
        page.PageSubTitle = "Sub title";
        page.PageHeader = "Header";
        page.PageFooter = "Footer";
        page.PageTitle = "Page title";
        page.PageRefresh = 60;
        world.fonts.entries[owhFontTitle].size = "5";
        world.fonts.entries[owhFontTitle].bold = true;
        world.fonts.entries[owhFontTitle].italic = true;
        world.fonts.entries[owhFontFooter].colour = "GRAY";
        world.fonts.entries[owhFontBody].italic = true;
    }

    test::PageWorld world;
    Text error = "old";
};

TEST_F(SimplePages, Simple) {
    ASSERT_TRUE(PageCreateSimple(world.scope, Path, "The <B>title</B>", "The body\r\n", error, true));
    EXPECT_EQ(error, "");
    test::ExpectGolden("simple.htm", world.Content(Path));
    EXPECT_EQ(world.page.CurrentCreatePage, Path);
    const Text bytes = std::to_string(world.Content(Path).size());
    std::erase_if(world.log, [](const Text& line) { return line.starts_with("PageCreateBody"); });
    EXPECT_EQ(world.log,
              (std::vector<Text>{"PageCreateProgress Starting 0", "PageCreateProgress Saving 0",
                                 "PageCreateProgress InternalBuild - Start 0",
                                 "PageCreateProgress InternalBuild - CreatePage 0",
                                 "PageCreateProgress InternalBuild - Finish 0", "PageCreated " + Path,
                                 "PageCreated2 " + Path + " True False " + bytes,
                                 "PageCreateProgress Finished 0"}));
}

TEST_F(SimplePages, Plain) {
    test::PageWorld plain;
    ASSERT_TRUE(PageCreateSimple(plain.scope, Path, "", "", error, false));
    test::ExpectGolden("simple-plain.htm", plain.Content(Path));
}

TEST_F(SimplePages, List) {
    const Array<Text> entries{"one", "", "three"};
    const ListContent list{5, "<H1>Head</H1>", "<P>Foot</P>", entries, true, true};
    ASSERT_TRUE(PageCreateList(world.scope, Path, "", list, error));
    test::ExpectGolden("list.htm", world.Content(Path));
    const ListContent empty{0, "head", "foot", entries, true, true};
    ASSERT_TRUE(PageCreateList(world.scope, Path, "", empty, error));
    EXPECT_NE(world.Content(Path).find("<I><P></P></I>"), std::string::npos);
}

TEST_F(SimplePages, Boxed) {
    ASSERT_TRUE(PageCreateSimpleBoxed2(world.scope, Path, "Title", "Body", {"80%", "#EEEEEE", "RED", true, 2},
                                       error));
    test::ExpectGolden("boxed.htm", world.Content(Path));
    ASSERT_TRUE(PageCreateSimpleBoxed2(world.scope, Path, "", "Body", {"", "", "RED", false, 0}, error));
    test::ExpectGolden("boxed-plain.htm", world.Content(Path));
}

TEST_F(SimplePages, Wrapped) {
    world.page.PagePageWidth = 40;
    Text body = "<PRE>a line that is longer than the width and stays as it was</PRE> ";
    for (int i = 0; i < 20; ++i) body += "some words <A HREF=\"x.htm\">and a link</A> ";
    ASSERT_TRUE(PageCreateSimple(world.scope, Path, "Title", body, error, false));
    test::ExpectGolden("wrapped.htm", world.Content(Path));
}

TEST_F(SimplePages, NothingIsToldWithoutAPath) {
    EXPECT_FALSE(PageCreateSimple(world.scope, "", "t", "b", error, false));
    EXPECT_EQ(error, "File Path has not been defined.");
    EXPECT_TRUE(world.log.empty());
}

TEST_F(SimplePages, AFailedWriteShowsInTheEvents) {
    EXPECT_TRUE(PageCreateSimple(world.scope, "C:\\gone\\a.htm", "t", "b", error, false));
    EXPECT_EQ(error, "");
    EXPECT_TRUE(world.log[world.log.size() - 2].starts_with("PageCreated2 C:\\gone\\a.htm False True "));
}

TEST_F(SimplePages, AListenerMayMakeAPageOfItsOwn) {
    bool made = false;
    world.events.PageCreated.Listen([&](Text&) {
        if (std::exchange(made, true)) return;
        Text nested;
        PageCreateSimple(world.scope, "C:\\pages\\nested.htm", "n", Text(5000, 'n'), nested, false);
    });
    ASSERT_TRUE(PageCreateSimple(world.scope, Path, "t", "b", error, false));
    EXPECT_EQ(world.log[world.log.size() - 2],
              "PageCreated2 " + Path + " True False " + std::to_string(world.Content(Path).size()));
}

} // namespace
} // namespace ostrel::html

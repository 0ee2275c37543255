#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel {
namespace {

TEST(MembersPages, PageResetSetsPageAndTable) {
    test::ControlBench bench;
    OstrelWebHelp& web = *bench.web;
    web.PageTitle("T");
    web.PageRefresh(7);
    web.PageFontBoldSet(1, true);
    web.PageFontBoldSet(11, true);
    web.PageTableSpaceHTML("x");
    web.PageTableColumnOrder(5, "Date");
    web.PageTableColumnOrder(101, "Date");
    Text error;
    web.PageTableHeaderLinksAdd("n", "l", error, "", true, 0, 3);
    web.PageTableHeaderNavNames("a", "b", "c", "d", "e");
    web.PageReset();
    EXPECT_EQ(web.PageTitle(), "");
    EXPECT_EQ(web.PageRefresh(), 0);
    EXPECT_EQ(web.PageTableSpaceHTML(), "&nbsp;&nbsp;");
    EXPECT_EQ(web.PageTableColumnOrder(5), "String");
    EXPECT_EQ(web.PageTableColumnOrder(101), "");
    EXPECT_EQ(web.PageTableSeparateHeaderField(), "RecordNumber");
    EXPECT_EQ(web.PageTableTotalFormatMaxPlaces(), 4);
    EXPECT_EQ(web.PageCreateTableMaxSubHeader(), 0);
    EXPECT_EQ(web.Inside().headerLinks.lastName, "Last");
    ASSERT_TRUE(web.PageCreateSimple("C:\\temp\\a.htm", "t", "b", error, false));
    EXPECT_NE(bench.Files().files["C:\\temp\\a.htm"].find("\r\n<P>t</P>"), Text::npos) << "no longer bold";
}

TEST(MembersPages, TheTableFallsBackToTheFontOfThePage) {
    test::ControlBench bench;
    const Grid<Text> cells{{"a"}};
    const auto table = [&](const Text& font) {
        return bench.web->CreateTable(1, 1, cells, {}, false, font, "", "", "", "");
    };
    EXPECT_NE(table("").find("<TD>a</TD>"), Text::npos);
    bench.web->HelpFont("<FONT SIZE=\"1\">");
    EXPECT_NE(table("").find("<TD><FONT SIZE=\"1\">a</FONT></TD>"), Text::npos);
    EXPECT_NE(table("<FONT>").find("<TD><FONT>a</FONT></TD>"), Text::npos);
}

TEST(MembersPages, PageBodyOutlivesTheArgument) {
    test::ControlBench bench;
    {
        const Text body(1000, 'b');
        bench.web->CreatePage(body);
    }
    EXPECT_EQ(bench.web->PageBody(), "<BODY>\r\n\r\n" + Text(1000, 'b') + "\r\n\r\n</BODY>");
    bench.web->PageInitialise();
    EXPECT_EQ(bench.web->PageBody(), "");
}

TEST(MembersPages, ARecordPageKnowsItsNeighboursAndItsValues) {
    test::ControlBench bench;
    OstrelWebHelp& web = *bench.web;
    web.PageReset();
    web.PageTableAddSeparate(true);
    web.PageTableHeaderNavNames("first", "previous", "next", "last", "all");
    std::vector<Text> found;
    Text shown;
    web.events.PageCreateTableSeparatePage.Listen([&](Long& page, Long&, Text&, Text& links, Text&, Flag&) {
        if (page != 3) return;
        found = {web.LinkSeparateAll(),  web.LinkSeparateFirst(), web.LinkSeparatePrevious(),
                 web.LinkSeparateNext(), web.LinkSeparateLast(),  web.SeparatePageValue("Unit price")};
        shown = web.StripTags(links);
    });
    Text error;
    ASSERT_TRUE(web.PageCreateTableNoTags("C:\\temp\\t.htm", "T", 5, 2, {"Name", "Unit Price"}, {},
                                          {{"a", "1"}, {"b", "2"}, {"c", "3"}, {"d", "4"}, {"e", "5"}},
                                          error));
    EXPECT_EQ(found, (std::vector<Text>{"t.htm#Rec_Num_3", "t_Rec_Num_1.htm", "t_Rec_Num_2.htm",
                                        "t_Rec_Num_4.htm", "t_Rec_Num_5.htm", "3"}));
    EXPECT_EQ(shown, "all first previous next last");
}

} // namespace
} // namespace ostrel

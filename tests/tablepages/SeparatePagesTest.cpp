#include <gtest/gtest.h>

#include <algorithm>

#include "html/FontType.h"
#include "tablepages/PageLinks.h"
#include "tablepages/ReportHost.h"
#include "tablepages/TableTypes.h"
#include "text/CodePage.h"

namespace ostrel::test {

namespace {

/// Three fruits in records of four fields.
struct RecordHost : ReportHost {
    RecordHost() {
        Table({"Item", "Unit Price", "Stock", "Note"},
              {{"Pears", "10", "0", "b"}, {"Apples", "2", "7", ""}, {"Figs", "1.5", "12", "A"}});
        Options().PageTableAddSeparate = true;
        Options().PageTableRecordNumber = true;
        state.page.PageAnchorTop = "False";
        state.page.PageAnchorBottom = "False";
    }
    void SortBoth() {
        Options().PageTableSeparateSortName = true;
        Options().PageTableSeparateSortValue = true;
    }
    /// Some of the record pages, each behind a line with its name.
    Text Records(const std::vector<Text>& ofRecords) const {
        Text family;
        for (const Text& record : ofRecords) {
            const Text name = "report_Rec_Num_" + record + ".htm";
            family += "=== " + name + "\r\n" + Page(name) + "\r\n";
        }
        return family;
    }
    /// What was told from the start of the record pages on, but for the steps of building a page.
    std::vector<Text> Told() const {
        const auto start =
            std::find(heard.begin(), heard.end(), "PageCreateProgress [Starting Separate Pages] [0]");
        std::vector<Text> told;
        std::copy_if(start, heard.end(), std::back_inserter(told), [](const Text& line) {
            return line.find("InternalBuild") == Text::npos && !line.starts_with("PageCreateBody");
        });
        return told;
    }
};

Long Count(const Text& text, TextView piece) {
    Long count = 0;
    for (std::size_t at = text.find(piece); at != Text::npos; at = text.find(piece, at + 1)) ++count;
    return count;
}

bool Holds(const Text& text, TextView piece) { return text.find(piece) != Text::npos; }

} // namespace

TEST(SeparatePages, PlainFamily) {
    RecordHost host;
    ASSERT_TRUE(host.Make());
    ExpectGolden("records.txt", host.Records({"1", "2", "3"}));
    EXPECT_EQ(BrokenLinks(host.ByName()), std::vector<std::string>{});
}

TEST(SeparatePages, ShownColumnsAlone) {
    RecordHost host;
    host.SortBoth();
    auto& options = host.Options();
    options.PageTableColumnHide.Put(3, true);
    options.PageTableSeparateShownOnly = true;
    options.PageTableExcelShownOnly = true;
    options.PageTableAddExcel = true;
    options.PageTableSeparateHeaderField = "Stock";
    ASSERT_TRUE(host.Make());
    EXPECT_FALSE(Holds(host.Family(), "Stock"));
    EXPECT_FALSE(Holds(host.Family(), ">7<"));
    EXPECT_TRUE(Holds(host.Page("report_Rec_Num_2.htm"), "<B>Record - 2</B>"));
    EXPECT_TRUE(Holds(host.Page("report_Rec_Num_1.htm"), "Unit Price"));
    EXPECT_EQ(host.Page("report.csv").substr(0, 22), "Item,Unit Price,Note\r\n");
}

TEST(SeparatePages, EveryOptionTogether) {
    RecordHost host;
    host.SortBoth();
    auto& options = host.Options();
    options.PageTableSeparateHeaderField = "unitprice";
    options.PageTableSeparateHeaderNav = true;
    options.PageTableSeparateHeaderLinks = true;
    options.PageTableSeparateRecordOffset = 1;
    options.PageTableSeparateAbove = owhSpaceHalf;
    options.PageTableSeparateBetween = owhSpaceLine;
    options.PageTableSeparateBelow = owhSpaceLineThickThin;
    options.PageTableHeaderAbove = owhSpaceLineDouble;
    options.PageTableHeaderBGColor = "SILVER";
    options.PageTableHeaderItalic = true;
    options.PageTableIgnoreBlankColumns = true;
    options.PageTableBodyPattern = owhPatternCheckers;
    options.PageTableBodyColor = "#EEEEEE";
    options.PageTableBodyColor2 = "#DDDDDD";
    options.PageTableColumnColor.Put(2, "YELLOW");
    options.PageTableColumnHide.Put(1, true);
    options.PageTableSpace = true;
    options.PageTableBorder = 1;
    options.PageTableBold = true;
    host.state.page.PageHeader = "Heading";
    host.state.page.PageFooter = "Footing";
    host.state.page.PageFont = "<FONT FACE=\"Arial\">";
    host.state.fonts.Find(owhFontTable)->colour = "NAVY";
    for (const char* name : {"First", "previous", "NEXT", "Last", "All", "Excel"})
        host.state.headerLinks.Add({name, {}, "tip", false, 1, 0}, host.error);
    host.state.headerLinks.Add({"Home", "report.htm", {}, true, 1, 0}, host.error);
    host.cells = {{"Pears", "10", "0", "b"}, {"Apples", "2", "7", ""}};
    ASSERT_TRUE(host.Make());
    ExpectGolden("records-all.txt", host.Records({"1", "1_Name_D", "2_Value_U"}));
    EXPECT_EQ(BrokenLinks(host.ByName()), std::vector<std::string>{});
}

TEST(SeparatePages, EventsInOrder) {
    RecordHost host;
    host.SortBoth();
    host.cells = {{"Pears", "10", "0", "b"}};
    host.names = {"b", "A", "c", "d"};
    host.Hear();
    ASSERT_TRUE(host.Make());
    std::vector<Text> expected{"PageCreateProgress [Starting Separate Pages] [0]",
                               "PageCreateTableSeparate [1] [4] [...] [...]"};
    const struct {
        Text suffix, sortBy, up;
    } variants[] = {{"", "Field Position", "True"},
                    {"_Name_U", "Field Name", "True"},
                    {"_Name_D", "Field Name", "False"},
                    {"_Value_U", "Field Value", "True"},
                    {"_Value_D", "Field Value", "False"}};
    for (const auto& [suffix, sortBy, up] : variants) {
        if (!suffix.empty())
            for (const char* line :
                 {"[Sort Started] [0]", "[...Sorting] [1]", "[...Sorting] [2]", "[Sort Finished] [2]"})
                expected.push_back(Text("SortProgress ") + line);
        const Text name = "C:\\out\\report_Rec_Num_1" + suffix + ".htm";
        const Text order = " [" + sortBy + "] [" + up + "]";
        expected.push_back("PageCreateTableSeparatePage [1] [1] [<B>Record - 1</B>] "
                           "[<A HREF=\"report.htm#Rec_Num_1\"><B>All</B></A>&nbsp; &nbsp;First&nbsp; "
                           "&nbsp;Previous&nbsp; &nbsp;Next&nbsp; &nbsp;Last]" +
                           order);
        expected.push_back("PageCreateTableTitle [Separate] [Sales] [<B>Record - 1</B>]" + order + " [1]");
        expected.push_back("PageCreated [" + name + "]");
        expected.push_back("PageCreated2 [" + name + "] [True] [False] [" +
                           std::to_string(host.files->files[name].size()) + "]");
    }
    expected.push_back("PageCreateProgress [Finished] [0]");
    EXPECT_EQ(host.Told(), expected);
}

TEST(SeparatePages, ASecondRunWritesNothing) {
    RecordHost host;
    host.SortBoth();
    ASSERT_TRUE(host.Make());
    const int written = host.files->replaces;
    EXPECT_EQ(written, 1 + 3 * 5);
    const auto before = host.files->files;

    ASSERT_TRUE(host.Make());
    EXPECT_EQ(host.files->replaces, written);

    // Sorted variants are skipped where the first page stands unchanged, and told of with their size.
    host.Options().PageTableCreateAllSeparate = false;
    host.cells.Put(2, 1, "Quinces");
    host.files->files.erase("C:\\out\\report_Rec_Num_3_Value_U.htm");
    host.Hear();
    ASSERT_TRUE(host.Make());
    EXPECT_EQ(host.files->replaces, written + 1 + 5 + 1);
    EXPECT_EQ(Count(host.files->files["C:\\out\\report_Rec_Num_2_Value_D.htm"], "Quinces"), 1);
    EXPECT_EQ(host.files->files["C:\\out\\report_Rec_Num_3_Value_U.htm"],
              before.at("C:\\out\\report_Rec_Num_3_Value_U.htm"));
    const Text old = "C:\\out\\report_Rec_Num_1_Name_D.htm";
    const auto told = host.Told();
    const auto at = std::find(told.begin(), told.end(), "PageCreated [" + old + "]");
    ASSERT_NE(at, told.end());
    EXPECT_EQ(*(at + 1),
              "PageCreated2 [" + old + "] [False] [False] [" + std::to_string(before.at(old).size()) + "]");
    EXPECT_EQ(Count(*(at - 1), "_Name_U"), 1); // no page was built in between
}

TEST(SeparatePages, SortedVariantsShowTheFieldsInTheirOrder) {
    RecordHost host;
    host.SortBoth();
    host.names = {"b", "A", "c", "a"};
    host.cells = {{"10", "9", "x", "X"}};
    ASSERT_TRUE(host.Make());
    const struct {
        Text suffix, order;
    } rows[] = {
        {"", "bAca"}, {"_Name_U", "Aabc"}, {"_Name_D", "cbaA"}, {"_Value_U", "bAca"}, {"_Value_D", "acAb"}};
    for (const auto& [suffix, order] : rows) {
        const Text page = host.Page("report_Rec_Num_1" + suffix + ".htm");
        Text found;
        for (std::size_t at = page.find("&nbsp;<B>"); at != Text::npos; at = page.find("&nbsp;<B>", at + 1))
            if (page[at + 10] == '<') found += page[at + 9];
        EXPECT_EQ(found, order) << suffix;
    }
}

TEST(SeparatePages, HeaderFieldAndOffset) {
    const struct {
        Text field;
        Long offset, record;
        Text head, back;
    } rows[] = {
        {"RecordNumber", 0, 2, "<P><B>Record - 2</B></P>", "\"report.htm#Rec_Num_2\""},
        {"", 0, 2, "", "\"report.htm#Rec_Num_2\""},
        {"Unit Price", 1, 2, "<P><B>2</B></P>", "\"report.htm#Rec_Num_1\""},
        {"UNITP rice", 2, 2, "<P><B>2</B></P>", "\"report.htm\""},
        {"Note", -5, 2, "<P><B></B></P>", "\"report.htm#Rec_Num_7\""},
        {"nothing", 2, 3, "<P><B>Record - 3</B></P>", "\"report.htm#Rec_Num_1\""},
    };
    for (const auto& [field, offset, record, head, back] : rows) {
        RecordHost host;
        host.Options().PageTableSeparateHeaderField = field;
        host.Options().PageTableSeparateRecordOffset = offset;
        Text navigation;
        host.events.PageCreateTableSeparatePage.Listen(
            [&, wanted = record](Long& page, Long&, Text&, Text& nav, Text&, Flag&) {
                if (page == wanted) navigation = nav;
            });
        ASSERT_TRUE(host.Make());
        const Text page = host.Page("report_Rec_Num_" + std::to_string(record) + ".htm");
        EXPECT_EQ(Count(page, "<P>"), head.empty() ? 1 : 2) << field;
        EXPECT_TRUE(Holds(page, head)) << field;
        EXPECT_TRUE(navigation.starts_with("<A HREF=" + back + ">")) << navigation;
    }
}

TEST(SeparatePages, TheHostChangesTableAndPages) {
    RecordHost host;
    Long calls = 0;
    host.events.PageCreateTableSeparate.Listen(
        [&](Long& rows, Long& columns, Array<Text>& names, Grid<Text>& values) {
            ++calls;
            EXPECT_EQ(values, host.cells);
            rows = 1;
            columns = 9;
            names.Put(1, "Fruit");
            values.Put(2, 1, "Plums");
            values.Put(2, 4, "new");
        });
    std::vector<Text> links;
    host.events.PageCreateTableSeparatePage.Listen(
        [&](Long& page, Long& pages, Text& subHeader, Text& navigation, Text& sortBy, Flag&) {
            const SeparatePage& separate = host.state.separate;
            if (page == 2) {
                links = {separate.all, separate.first, separate.previous, separate.next, separate.last};
                EXPECT_EQ(html::SeparatePageValue(separate, "fruit"), "Plums");
            }
            pages = 77;
            subHeader = "Sub " + std::to_string(page);
            navigation = "Nav";
            sortBy = "lost";
        });
    host.Options().PageTableSeparateHeaderNav = true;
    ASSERT_TRUE(host.Make());
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(links,
              (std::vector<Text>{"report.htm#Rec_Num_2", "report_Rec_Num_1.htm", "report_Rec_Num_1.htm",
                                 "report_Rec_Num_3.htm", "report_Rec_Num_3.htm"}));
    const Text page = host.Page("report_Rec_Num_2.htm");
    for (const char* piece : {"<P>Sub 2</P>\r\n\r\n<P>Nav</P>", "<B>Fruit</B>", "Plums", "&nbsp;new&nbsp;"})
        EXPECT_TRUE(Holds(page, piece)) << piece << "\n" << page;
    EXPECT_TRUE(Holds(host.Page("report.htm"), "Apples")); // the main page stood by then
    EXPECT_EQ(host.state.separate.fields, 0);
    EXPECT_EQ(html::SeparatePageValue(host.state.separate, "fruit"), "");
}

TEST(SeparatePages, ANestedReportLeavesTheOuterOneWhole) {
    RecordHost plain, nested;
    plain.SortBoth();
    nested.SortBoth();
    ASSERT_TRUE(plain.Make());
    bool inside = false;
    nested.events.PageCreateTableSeparatePage.Listen([&](Long&, Long&, Text&, Text&, Text&, Flag&) {
        if (inside) return;
        inside = true;
        const Text outer = std::exchange(nested.filePath, "C:\\out\\other.htm");
        EXPECT_TRUE(nested.Make());
        nested.filePath = outer;
        inside = false;
    });
    ASSERT_TRUE(nested.Make());
    for (const auto& [path, content] : plain.files->files)
        EXPECT_EQ(nested.files->files[path], content) << path;
}

TEST(SeparatePages, AStopIsHeardAtEveryTenthRecord) {
    for (Flag RunFlags::*const flag : {&RunFlags::StopPressed, &RunFlags::HostStop}) {
        RecordHost host;
        host.cells.Resize(35, 4);
        host.cells.Put(1, 1, "x");
        Long made = 0;
        host.events.PageCreated.Listen([&](Text& path) {
            made += Holds(path, "_Rec_Num_");
            if (made == 12) host.run.*flag = true;
        });
        EXPECT_FALSE(host.Make());
        EXPECT_EQ(made, 20);
        EXPECT_EQ(host.error, "Interrupted by User");
        EXPECT_EQ(host.state.separate.fields, 0);
        EXPECT_FALSE(host.Page("report_Rec_Num_20.htm").empty());
        EXPECT_TRUE(host.Page("report_Rec_Num_21.htm").empty());
    }
}

TEST(SeparatePages, PagesThatCannotBeWritten) {
    // A "." in a folder's name takes part in the naming, so the pages go where no folder is.
    RecordHost host;
    host.files->directories.insert("C:\\out.d");
    host.filePath = "C:\\out.d\\report.htm";
    std::vector<Text> failed;
    host.events.PageCreated2.Listen([&](Text& path, Flag&, Flag& error, Long&) {
        if (error) failed.push_back(path);
    });
    EXPECT_TRUE(host.Make());
    EXPECT_EQ(failed, (std::vector<Text>{"C:\\out_Rec_Num_1.d\\report_Rec_Num_1.htm",
                                         "C:\\out_Rec_Num_2.d\\report_Rec_Num_2.htm",
                                         "C:\\out_Rec_Num_3.d\\report_Rec_Num_3.htm"}));
}

TEST(SeparatePages, SpacersSpanWhatTheMainTableShows) {
    const struct {
        bool hideFirst, hideSecond, space;
        Text span;
    } rows[] = {{false, false, false, "2"}, {true, false, false, "1"}, {true, true, false, "0"},
                {false, false, true, "3"},  {false, true, true, "1"},  {true, true, true, "-1"}};
    for (const auto& [hideFirst, hideSecond, space, span] : rows) {
        RecordHost host;
        host.Options().PageTableColumnHide.Put(1, hideFirst);
        host.Options().PageTableColumnHide.Put(2, hideSecond);
        host.Options().PageTableSpace = space;
        host.Options().PageTableHeaderBelow = owhSpaceHalf;
        ASSERT_TRUE(host.Make());
        EXPECT_TRUE(Holds(host.Page("report_Rec_Num_2.htm"), "COLSPAN=\"" + span + "\" HEIGHT=\"6\""))
            << span;
    }
}

} // namespace ostrel::test

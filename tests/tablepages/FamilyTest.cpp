#include <gtest/gtest.h>

#include "html/FontType.h"
#include "tablepages/PageLinks.h"
#include "tablepages/ReportHost.h"
#include "tablepages/TableTypes.h"

namespace ostrel::test {

namespace {

void Prices(ReportHost& host) {
    host.Table(
        {"Item", "Unit Price", "Time"},
        {{"pears", "10", "1:30"}, {"Apples", "0", "90"}, {"apples", "2.5", "1:02:03"}, {"", "2.5", ""}});
    host.right.Put(2, true);
}

/// The rows 1.1, 1.2, 2.1: the second one belongs to the record of the first.
void Records(ReportHost& host) {
    host.Table({"No", "Name", "Visit", "Paid"}, {{"1.1", "Brown", "May", "5"},
                                                 {"1.2", "", "June", "7"},
                                                 {"2.1", "Adams", "April", "1"},
                                                 {"3", "Clark", "July", "2"}});
    host.Options().PageTableColumnRecord = 1;
    host.Options().PageTableColumnHide.Put(1, true);
    host.Options().PageTableColumnSubRecord.Put(3, true);
    host.Options().PageTableColumnSubRecord.Put(4, true);
    host.Options().PageTableRecordNumber = true;
}

void Sorted(ReportHost& host, Long column, const Text& order = "String") {
    host.Options().PageTableColumnSort.Put(column, true);
    host.Options().PageTableColumnOrder.Put(column, order);
}

void Summed(ReportHost& host) {
    host.Options().PageTableTotal = true;
    host.Options().PageTableColumnTotal.Put(2, true);
    host.Options().PageTableColumnTotalTime.Put(3, true);
}

void AddLink(ReportHost& host, const Text& name, const Text& link, bool right, Long row = 1) {
    Text error;
    host.state.headerLinks.Add({name, link, "", right, row, 0}, error);
}

struct Family {
    const char* name;
    std::function<void(ReportHost&)> prepare;
};

const std::vector<Family>& Families() {
    static const std::vector<Family> families{
        {"plain", Prices},
        {"parts",
         [](ReportHost& host) {
             Prices(host);
             PageProperties& page = host.state.page;
             page.PageAnchorTop = "top";
             page.PageAnchorBottom = "False";
             page.PageSubTitle = "by item";
             page.PageHeader = "All prices in euro";
             page.PageFooter = "end";
             for (const Long type : {owhFontTable, owhFontTitle}) {
                 host.state.fonts.Find(type)->face = "Arial";
                 host.state.fonts.Find(type)->bold = type == owhFontTable;
             }
             host.state.fonts.Find(owhFontTableHeader)->italic = true;
             host.events.PageCreateTableTitle.Listen([](Text&, Text& title, Text& body, Text&, Flag&, Long&) {
                 title += " 2024";
                 body = "from the host";
             });
         }},
        {"look",
         [](ReportHost& host) {
             Prices(host);
             host.tags = Grid<Text>(4, 3);
             host.tags.Put(1, 1, "NOWRAP");
             host.tags.Put(2, 2, "BGCOLOR=\"RED\"");
             TableOptions& options = host.Options();
             options.PageTableBorder = 1;
             options.PageTableBorderColor = "BLACK";
             options.PageTableBodyPattern = owhPatternCheckers;
             options.PageTableBodyColor = "#EEEEEE";
             options.PageTableBodyColor2 = "#ffffff";
             options.PageTableColumnColor.Put(3, "YELLOW");
             options.PageTableColumnWidth.Put(2, "20%");
             options.PageTableHeaderAbove = owhSpaceLineThinThick;
             options.PageTableHeaderBelow = owhSpaceLineDouble;
             options.PageTableHeaderBGColor = "SILVER";
             options.PageTableHeaderRepeat = true;
             options.PageTableHeaderSpace = true;
             options.PageTableSpace = true;
             options.PageTableBold = true;
         }},
        {"cell-look",
         [](ReportHost& host) {
             Prices(host);
             TableOptions& options = host.Options();
             options.PageTableAlign = "LEFT";
             options.PageTableVAlign = "MIDDLE";
             options.PageTableHeaderAlign = "RIGHT";
             options.PageTableHeaderVAlign = "BOTTOM";
             options.PageTableHeaderBold = false;
             options.PageTableItalic = true;
             options.PageTableRecordNumber = true;
             options.PageTableRecordNumberItalic = true;
             options.PageTableRecordNumberSort = true;
             options.PageTableHeaderRNName = "No";
             options.PageTableBackground = "sand.gif";
             options.PageTableBGColor = "WHITE";
             options.PageTableCellPadding = 2;
             options.PageTableCellSpacing = 3;
             options.PageTableZeroBlank = false;
             options.PageTableHeaderLinksBold = true;
             options.PageTableHeaderLinksItalic = true;
             options.PageTableHeaderLinksSize = "2";
             AddLink(host, "Home", "index.htm", false);
         }},
        {"own-tags",
         [](ReportHost& host) {
             Prices(host);
             host.Options().PageTableTags = "CLASS=\"prices\"";
             host.Options().PageTableBorder = 1;
             host.Options().PageTableRecordNumber = true;
             host.Options().PageTableRecordNumberItalic = true;
             host.Options().PageTableAddSeparate = true;
             host.Options().PageTableSeparateTTTo = "to the record";
             host.Options().PageTableAddExcel = true;
             AddLink(host, "Excel", "", true);
             host.cells.Resize(1, 3);
         }},
        {"total-look",
         [](ReportHost& host) {
             Prices(host);
             Summed(host);
             Sorted(host, 1);
             Sorted(host, 2, "Numeric");
             TableOptions& options = host.Options();
             options.PageTableColumnTotalFormat.Put(2, "0.00");
             options.PageTableTotalLegend = "Whole";
             options.PageTableTotalBelow = owhSpaceLine;
             options.PageTableTotalBreak = true;
             options.PageTableTotalBreakSplit = true;
             options.PageTableTotalBreakColour = "PINK";
             options.PageTableTotalBreakLegend = "Part";
             options.PageTableColumnBreak.Put(1, true);
             options.PageTableTotalSortSplit = true;
             options.PageTableTotalSortBelow = owhSpaceLineDouble;
             options.PageTableTotalSortLegend = "Group";
         }},
        {"sparse",
         [](ReportHost& host) {
             host.Table({"A", "B<BR>b", "", "D</P>tail"},
                        {{"", "x", "0", "1"}, {" ", "0.00", "0", "0"}, {"", "", "", "y<BR>z"}});
             TableOptions& options = host.Options();
             options.PageTableIgnoreBlankColumns = true;
             options.PageTableIgnoreBlankRows = true;
             options.PageTableColumnLink.Put(4, "list.htm#D");
             options.PageTableColumnLinkTT.Put(4, "more");
             options.PageTableAddExcel = true;
             options.PageTableAddLeft = "";
         }},
        {"numbered",
         [](ReportHost& host) {
             Prices(host);
             TableOptions& options = host.Options();
             options.PageTableRecordNumber = true;
             options.PageTableRecordNumberBold = true;
             options.PageTableRecordNumberSort = true;
             options.PageTableOrderUpTT = "up";
             options.PageTableOrderDownTT = "down";
             options.PageTableColumnWidth.Put(1, "50");
             Sorted(host, 1);
         }},
        {"linked",
         [](ReportHost& host) {
             Prices(host);
             host.Options().PageTableColumnHide.Put(2, true);
             host.Options().PageTableHeaderRepeat = true;
             AddLink(host, "Home", "index.htm", false);
             AddLink(host, "Excel", "", true);
             AddLink(host, "Next", "", true);
             AddLink(host, "Bottom", "", false, 3);
             host.state.headerLinks.AddFormat({1, owhHeaderLinksTop, "2", true, false, "RED", false});
             host.state.headerLinks.show = {true, true, true, true};
         }},
        {"totals",
         [](ReportHost& host) {
             Prices(host);
             Summed(host);
             TableOptions& options = host.Options();
             options.PageTableTotalFormat = "auto";
             options.PageTableTotalColour = "LIME";
             options.PageTableTotalBold = true;
             options.PageTableTotalAbove = owhSpaceLine;
             options.PageTableTotalBreak = true;
             options.PageTableTotalBreakAbove = owhSpaceNone;
             options.PageTableTotalBreakBelow = owhSpaceHalf;
             options.PageTableColumnBreak.Put(2, true);
             options.PageTableRecordNumber = true;
             host.tags = Grid<Text>(4, 3);
             host.tags.Put(3, 2, "BGCOLOR=\"PINK\"");
             host.events.PageCreateTableTotalFormat.Listen([](Long& column, Text& name, Text& total) {
                 if (column == 3) total = name + " " + total;
             });
         }},
        {"sorted",
         [](ReportHost& host) {
             Prices(host);
             Sorted(host, 1);
             Sorted(host, 2, "Numeric");
             host.Options().PageTableOrderUseNames = true;
             host.Options().PageTableBodyPattern = owhPatternRows;
             host.Options().PageTableBodyColor = "#EEEEEE";
         }},
        {"subtotals",
         [](ReportHost& host) {
             Prices(host);
             Summed(host);
             Sorted(host, 1);
             TableOptions& options = host.Options();
             options.PageTableTotalSort = true;
             options.PageTableTotalSortColour = "AQUA";
             options.PageTableTotalSortAbove = owhSpaceNone;
             options.PageTableTotalAbove = owhSpaceLineThick;
             options.PageTableRecordNumber = true;
             options.PageTableTotalItalic = true;
         }},
        {"lost-subtotal",
         [](ReportHost& host) {
             Prices(host);
             Summed(host);
             Sorted(host, 1);
             host.Options().PageTableTotal = false;
             host.Options().PageTableTotalSort = true;
         }},
        {"rows-of-records",
         [](ReportHost& host) {
             Records(host);
             Sorted(host, 2);
             host.Options().PageTableBodyPattern = owhPatternRows;
             host.Options().PageTableBodyColor = "#EEEEEE";
         }},
        {"sorted-within-records",
         [](ReportHost& host) {
             Records(host);
             Sorted(host, 3);
             host.Options().PageTableTotal = true;
             host.Options().PageTableColumnTotal.Put(4, true);
         }},
        {"exposed",
         [](ReportHost& host) {
             Prices(host);
             Sorted(host, 1);
             host.Options().PageTableColumnExpose.Put(1, true);
         }},
        {"grouped",
         [](ReportHost& host) {
             Prices(host);
             Sorted(host, 1);
             Summed(host);
             TableOptions& options = host.Options();
             host.cells.Put(4, 2, "");
             options.PageTableRowGroup = 2;
             options.PageTableBlankCells = true;
             options.PageTableOrderUpMark = "&uarr;";
             options.PageTableOrderDownMark = "&darr;";
             options.PageTableRecordNumber = true;
             options.PageTableRecordNumberSort = true;
             options.PageTableHeaderRepeat = true;
             options.PageTableTotalGroup = true;
             options.PageTableTotalSort = true;
             options.PageTableTotalBreak = true;
             options.PageTableColumnBreak.Put(1, true);
             options.PageTableTotalColumn = 2;
             options.PageTableTotalSortColour = "AQUA";
         }},
        {"grouped-links-above",
         [](ReportHost& host) {
             Prices(host);
             host.Options().PageTableColumnTotal.Put(1, true);
             host.Options().PageTableTotalBreak = true;
             host.Options().PageTableColumnBreak.Put(2, true);
             host.Options().PageTableColumnHide.Put(2, true);
             host.Options().PageTableTotalGroup = true;
             host.Options().PageTableRowGroup = 3;
             AddLink(host, "Top", "", true);
             host.state.headerLinks.show = {true, false, false, false};
         }},
    };
    return families;
}

} // namespace

TEST(ReportFamily, GoldenPages) {
    const std::set<std::string> elsewhere{"#", "index.htm", "list.htm#D.X-1", "list.htm#D.Y-Z"};
    for (const auto& [name, prepare] : Families()) {
        ReportHost host;
        prepare(host);
        const std::set<Text> planned = host.FileNames();
        EXPECT_TRUE(host.Make()) << name << ": " << host.error;
        std::set<Text> made;
        for (const auto& file : host.files->files) made.insert(file.first.substr(file.first.rfind('\\') + 1));
        EXPECT_EQ(planned, made) << name;
        ExpectGolden(name + Text(".txt"), host.Family());
        for (const std::string& link : BrokenLinks(host.ByName()))
            EXPECT_TRUE(elsewhere.contains(link.substr(link.find("> ") + 2))) << name << ": " << link;
    }
}

// A row of the table costs the same wherever it stands, so that what the buffers, the yields and the tag
// tables do at their limits shows here alone.
TEST(ReportFamily, RowsOfALongTableAreThoseOfAShortOne) {
    ReportHost host;
    constexpr Long rows = 10'000;
    Grid<Text> cells(rows, 2);
    Grid<Text> tags(rows, 2);
    Text expected;
    for (Long row = 1; row <= rows; ++row) {
        const Text number = std::to_string(row);
        cells.Put(row, 1, "n" + number);
        cells.Put(row, 2, number);
        tags.Put(row, 2, "ID=\"" + number + "\"");
        expected += "<TR>\r\n<TD VALIGN=\"TOP\">&nbsp;n" + number + "&nbsp;</TD>\r\n<TD ID=\"" + number +
                    "\">&nbsp;" + number + "&nbsp;</TD>\r\n</TR>\r\n\r\n";
    }
    host.Table({"", ""}, std::move(cells));
    host.tags = std::move(tags);
    ASSERT_TRUE(host.Make());
    const Text page = host.Page("report.htm");
    const std::size_t start = page.find("<TR>");
    ASSERT_NE(start, Text::npos);
    EXPECT_TRUE(TextView(page).substr(start).starts_with(expected));
}

} // namespace ostrel::test

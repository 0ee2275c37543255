#include "html/TableWriter.h"

#include <gtest/gtest.h>

#include "html/Elements.h"

namespace ostrel::html {
namespace {

struct World {
    Events events;
    Platform platform;
    RunFlags run;
    Context context{events, platform, run};
};

Text Table(const Grid<Text>& cells, const Grid<Text>& tags, const TableLook& look = {}) {
    World world;
    return CreateTable(world.context, cells.Rows(), cells.Columns(), cells, tags, look);
}

constexpr TextView Start = "<TABLE CELLSPACING=\"0\" CELLPADDING=\"0\" BORDER=\"0\">\r\n\r\n";

/// The rows of a table without the frame that all tables share; "|" stands for CR LF.
Text Rows(Text table) {
    EXPECT_TRUE(table.starts_with(Start)) << table;
    EXPECT_TRUE(table.ends_with("</TABLE>")) << table;
    table = table.substr(Start.size(), table.size() - Start.size() - 8);
    Text shown;
    for (const char c : table)
        if (c == '\n')
            shown += '|';
        else if (c != '\r')
            shown += c;
    return shown;
}

TEST(TableWriter, Rows) {
    TableLook spaced;
    spaced.spaceColumns = true;
    TableLook fonted;
    fonted.font = "<FONT SIZE=\"1\">";
    TableLook rowTagged;
    rowTagged.rowTags = " ALIGN=LEFT ";
    const struct {
        const char* what;
        Grid<Text> cells, tags;
        TableLook look;
        Text expected;
    } rows[] = {
        {"values and tags",
         {{"a", "b"}},
         {{"", " NOWRAP "}},
         {},
         "<TR>|<TD>a</TD>|<TD NOWRAP>b</TD>|</TR>||"},
        {"an empty cell of an unused column is filled, of a used one merged",
         {{"a", ""}, {"", "b"}, {"", "c"}},
         {},
         {},
         "<TR>|<TD>a</TD>|<TD>&nbsp;</TD></TR>||<TR>|<TD></TD>|<TD>b</TD>|</TR>||"
         "<TR>|<TD></TD>|<TD>c</TD>|</TR>||"},
        {"runs of blanks",
         {{"a", "b", "c", "d"}, {"", "", "", "x"}, {"x", "", "", ""}, {"x", "", "", "y"}},
         {},
         {},
         "<TR>|<TD>a</TD>|<TD>b</TD>|<TD>c</TD>|<TD>d</TD>|</TR>||<TR>|<TD COLSPAN=\"3\"></TD>|<TD>x</TD>|</TR>||"
         "<TR>|<TD>x</TD>|<TD COLSPAN=\"3\"></TD>|</TR>||<TR>|<TD>x</TD>|<TD></TD><TD></TD>|<TD>y</TD>|</TR>||"},
        {"tags of an empty cell stay, and hold blanks in front of them apart",
         {{"a", "b"}, {"c", ""}, {"", "d"}},
         {{"", ""}, {"", "BGCOLOR=\"RED\""}, {"X", ""}},
         {},
         "<TR>|<TD>a</TD>|<TD>b</TD>|</TR>||<TR>|<TD>c</TD>|<TD BGCOLOR=\"RED\"></TD></TR>||"
         "<TR>|<TD X></TD><TD>d</TD>|</TR>||"},
        {"a wholly empty row", {{"", "", ""}}, {}, {}, "<TR>|<TD COLSPAN = \"3\">&nbsp;</TD>|</TR>||"},
        {"the same with spacers", {{"", "", ""}}, {}, spaced, "<TR>|<TD COLSPAN = \"5\">&nbsp;</TD>|</TR>||"},
        {"the same with row tags",
         {{"", ""}},
         {},
         rowTagged,
         "<TR ALIGN=LEFT>|<TD COLSPAN = \"2\"></TD>|</TR>||"},
        {"one column is never a wholly empty row",
         {{""}, {""}},
         {{""}, {"A"}},
         {},
         "<TR>|<TD>&nbsp;</TD></TR>||<TR>|<TD A></TD></TR>||"},
        {"tags alone leave the columns unused",
         {{"", "", ""}, {"a", "", ""}},
         {{"", "", "HEIGHT=\"2\""}, {}},
         {},
         "<TR>|<TD></TD><TD></TD>|<TD HEIGHT=\"2\"></TD></TR>||"
         "<TR>|<TD>a</TD>|<TD>&nbsp;</TD><TD>&nbsp;</TD></TR>||"},
        {"a span passes over columns; a fraction is cut; blanks in front of the quote hide it",
         {{"a", "b", "c"}, {"a", "b", "c"}, {"a", "b", "c"}},
         {{"COLSPAN=\"2.9\""}, {"COLSPAN= \"2\""}, {"COLSPAN=\"-2\""}},
         {},
         "<TR>|<TD COLSPAN=\"2.9\">a</TD>|<TD>c</TD>|</TR>||"
         "<TR>|<TD COLSPAN= \"2\">a</TD>|<TD>b</TD>|<TD>c</TD>|</TR>||"
         "<TR>|<TD COLSPAN=\"-2\">a</TD>|<TD>b</TD>|<TD>c</TD>|</TR>||"},
        {"a span that no whole number holds",
         {{"a", "b"}},
         {{"COLSPAN=\"99999999999\""}},
         spaced,
         "<TR>|<TD COLSPAN=\"99999999999\">a</TD>|<TD>&nbsp;&nbsp;</TD><TD>b</TD>|</TR>||"},
        {"spacers carry content once and merge later",
         {{"a", "b"}, {"c", "d"}, {"", "e"}},
         {},
         spaced,
         "<TR>|<TD>a</TD>|<TD>&nbsp;&nbsp;</TD><TD>b</TD>|</TR>||<TR>|<TD>c</TD>|<TD></TD>|<TD>d</TD>|</TR>||"
         "<TR>|<TD></TD><TD></TD>|<TD>e</TD>|</TR>||"},
        {"a spacer takes colour and height of the cell behind it",
         {{"a", "b"}, {"c", "d"}},
         {{"", "HEIGHT=\"3\" BGCOLOR=\"RED\""}, {"", "BGCOLOR=\"RED\""}},
         spaced,
         "<TR>|<TD>a</TD>|<TD BGCOLOR=\"RED\" HEIGHT=\"3\">&nbsp;&nbsp;</TD>"
         "<TD HEIGHT=\"3\" BGCOLOR=\"RED\">b</TD>|</TR>||"
         "<TR>|<TD>c</TD>|<TD BGCOLOR=\"RED\"></TD><TD BGCOLOR=\"RED\">d</TD>|</TR>||"},
        {"the spacer behind a wide cell stays unused",
         {{"a", "", "b"}, {"c", "", "d"}},
         {{"COLSPAN=\"3\""}, {"COLSPAN=\"3\""}},
         spaced,
         "<TR>|<TD COLSPAN=\"3\">a</TD>|<TD>&nbsp;&nbsp;</TD><TD>b</TD>|</TR>||"
         "<TR>|<TD COLSPAN=\"3\">c</TD>|<TD>&nbsp;&nbsp;</TD><TD>d</TD>|</TR>||"},
        {"tags alone, with spacers",
         {{"", "", ""}},
         {{"", "BGCOLOR=\"RED\"", ""}},
         spaced,
         "<TR>|<TD></TD>|<TD BGCOLOR=\"RED\"></TD><TD BGCOLOR=\"RED\"></TD><TD></TD><TD></TD>|</TR>||"},
        {"font of cells, of blank cells and of what has it already",
         {{"a", ""}, {"<font size=\"1\">b</font>", "<FONT SIZE=\"1\">c"}},
         {},
         fonted,
         "<TR>|<TD><FONT SIZE=\"1\">a</FONT></TD>|<TD><FONT SIZE=\"1\">&nbsp;</FONT></TD></TR>||"
         "<TR>|<TD><font size=\"1\">b</font></TD>|<TD><FONT SIZE=\"1\"><FONT SIZE=\"1\">c</FONT></TD>|</TR>||"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Rows(Table(row.cells, row.tags, row.look)), row.expected) << row.what;
}

TEST(TableWriter, PiecesOfACellCountAsOneText) {
    World world;
    LargeBuffer output;
    TableLook look;
    look.font = "<FONT SIZE=\"1\">";
    TableWriter table(world.context, output, 3, look);
    const CellView cells[] = {{"&nbsp;", "", ""}, {"<FONT ", "SIZE=\"1\">x</FO", "NT>"}, {"", "", "b"}};
    table.Row(cells);
    table.End();
    EXPECT_EQ(Rows(Text(output.View())),
              "<TR>|<TD><FONT SIZE=\"1\">&nbsp;</FONT></TD>|<TD><FONT SIZE=\"1\">x</FONT></TD>|"
              "<TD><FONT SIZE=\"1\">b</FONT></TD>|</TR>||");
}

TEST(TableWriter, CountsAndArraysThatDiffer) {
    World world;
    const Grid<Text> cells{{"a", "b"}};
    EXPECT_EQ(CreateTable(world.context, 0, 2, cells, {}, {}), "");
    EXPECT_EQ(CreateTable(world.context, 1, 0, cells, {}, {}), "");
    EXPECT_EQ(Rows(CreateTable(world.context, 2, 1, cells, {}, {})),
              "<TR>|<TD>a</TD>|</TR>||<TR>|<TD></TD>|</TR>||");
    EXPECT_EQ(Rows(CreateTable(world.context, 2, 4, cells, {}, {})),
              "<TR>|<TD>a</TD>|<TD>b</TD>|<TD>&nbsp;</TD><TD>&nbsp;</TD></TR>||"
              "<TR>|<TD COLSPAN = \"4\">&nbsp;</TD>|</TR>||");
    TableLook spaced;
    spaced.spaceColumns = true;
    const Grid<Text> values{{"a"}, {"b"}, {""}}, tags{{""}, {"COLSPAN=\"5\""}, {"NOWRAP"}};
    EXPECT_EQ(Rows(CreateTable(world.context, 4, 4, values, tags, spaced)),
              "<TR>|<TD>a</TD>|<TD>&nbsp;&nbsp;</TD><TD>&nbsp;</TD><TD>&nbsp;&nbsp;</TD><TD>&nbsp;</TD>"
              "<TD>&nbsp;&nbsp;</TD><TD>&nbsp;</TD></TR>||"
              "<TR>|<TD COLSPAN=\"5\">b</TD>|<TD></TD><TD></TD>|</TR>||"
              "<TR>|<TD NOWRAP></TD><TD COLSPAN=\"6\"></TD>|</TR>||"
              "<TR>|<TD COLSPAN = \"7\">&nbsp;</TD>|</TR>||");
}

TEST(TableWriter, CountsAloneAreBoundedAndContentIsNot) {
    World world;
    constexpr std::size_t Mebibyte = std::size_t{1} << 20, Bound = 64 * Mebibyte;
    constexpr Long Most = 2147483647;
    TableLook look;
    look.font = Text(Mebibyte, 'f');
    Grid<Text> cells(1, 70);
    for (Long column = 1; column <= 70; ++column) cells.Put(1, column, "x");
    const std::size_t content = CreateTable(world.context, 1, 70, cells, {}, look).size();
    EXPECT_GT(content, 70 * Mebibyte);
    const std::size_t wide = CreateTable(world.context, 1, Most, cells, {}, look).size() - content;
    EXPECT_GT(wide, Bound - 2 * Mebibyte);
    EXPECT_LE(wide, Bound);
    const std::size_t high = CreateTable(world.context, Most, 70, cells, {}, look).size() - content;
    EXPECT_GT(high, Bound - 2 * Mebibyte);
    EXPECT_LE(high, Bound);
    EXPECT_EQ(CreateSpaces(Most).size(), Bound / 6 * 6);
}

} // namespace
} // namespace ostrel::html

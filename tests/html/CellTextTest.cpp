#include <gtest/gtest.h>

#include "html/SeparatePage.h"
#include "html/TableBuilder.h"

namespace ostrel::html {
namespace {

TEST(CellText, ZeroBlank) {
    const struct {
        Text value, delimiter, expected;
    } rows[] = {
        {"0", ".", ""},   {"00", ".", ""},         {" 0.00 ", ".", ""}, {".", ".", ""},  {".0", ".", ""},
        {"  ", ".", ""},  {"0.0.0", ".", "0.0.0"}, {"-0", ".", "-0"},   {"1", ".", "1"}, {" 1 ", ".", " 1 "},
        {"0,0", ",", ""}, {"0.0", ",", "0.0"},     {"0.0", "", "0.0"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CreateZeroBlank(row.value, row.delimiter), row.expected) << row.value;
}

TEST(CellText, TableCell) {
    EXPECT_EQ(CreateTableCell(" A ", "<FONT>", ""), "<TD A></TD>");
    EXPECT_EQ(CreateTableCell("", "", "x"), "<TD>x</TD>");
    EXPECT_EQ(CreateTableCell("", "<FONT>", "x"), "<TD><FONT>x</FONT></TD>");
    EXPECT_EQ(CreateTableCell("", "<FONT>", "<font>x</Font>"), "<TD><font>x</Font></TD>");
    EXPECT_EQ(CreateTableCell("", "<FONT>", "<FONT>x"), "<TD><FONT><FONT>x</FONT></TD>");
}

TEST(CellText, AddBlanks) {
    const struct {
        Long blanks;
        Text expected;
    } rows[] = {
        {0, "r"}, {1, "r<TD></TD>\r\n"}, {2, "r<TD></TD><TD></TD>\r\n"}, {3, "r<TD COLSPAN=\"3\"></TD>\r\n"}};
    for (auto [blanks, expected] : rows) {
        Text row = "r";
        CreateTableAddBlanks(row, blanks);
        EXPECT_EQ(row, expected);
        EXPECT_EQ(blanks, 0);
    }
}

TEST(CellText, FormatCell) {
    const struct {
        Text text;
        Long width;
        Text expected;
    } rows[] = {
        {"aaaa bbbb cccc", 10, "aaaa bbbb cccc"},
        {"aaaa bbbb cccc", 11, "aaaa bbbb|cccc"},
        {" aaaa bbbb ", 11, "aaaa bbbb"},
        {"aaaaaaaaaaa bbb", 11, "aaaaaaaaaaa|bbb"}, // the blank right behind the width counts
        {"aaaaaaaaaaaaa", 11, "aaaaaaaaaaa|aa"},
        {"aaaa  bbbbbbbbbb", 11, "aaaa |bbbbbbbbbb"},
        {"a<br>bb <BR><BR>", 11, "a<BR>bb<BR><BR>"},
        {"<BR>a", 11, "a"},
        {"<BR><BR>a<BR> <BR>b", 11, "a<BR><BR>b"},
        {"1234567890&amp;", 11, "1234567890&amp;"},
        {"1234567890&AMP;&amp;", 11, "1234567890&|AMP;&amp;"}, // cut by raw characters, inside an entity
        {"1234567890&amp;lt;", 11, "1234567890&amp;lt;"},      // decoded twice
        {"123456&amp;amp;", 11, "123456&amp;amp;"},
        {"1234567&amp;nbsp;", 11, "1234567&amp|;nbsp;"}, // blanks are decoded first, so this is none
        {"", 11, ""},
    };
    for (const auto& row : rows) {
        Text expected;
        for (const char c : row.expected) expected += c == '|' ? Text("t<BR>l") : Text(1, c);
        EXPECT_EQ(FormatCell(row.text, row.width, "t", "l"), expected) << row.text;
    }
}

TEST(CellText, FormatCellOfMegabytes) {
    // Texts on which a second look at the rest would never come to an end.
    Text text;
    while (text.size() < 1'000'000) text += "&amp;&amp;lt; a&b ";
    EXPECT_GT(FormatCell(text, 11, "", "").size(), text.size());
    EXPECT_EQ(FormatCell(Text(300'000, '&'), 3000, "", "").size(), 300'000u + 99 * 4);
    Text breaks;
    for (int i = 0; i < 200'000; ++i) breaks += "<br>";
    EXPECT_EQ(FormatCell(breaks, 11, "", ""), "");
}

TEST(CellText, SeparatePageValue) {
    SeparatePage page;
    page.names = {"Unit Price", "unit_price2", "A"};
    page.values = {"1", "2"};
    EXPECT_EQ(SeparatePageValue(page, "A"), "") << "no record page is being made";
    page.fields = 3;
    EXPECT_EQ(SeparatePageValue(page, "UNIT-price 7"), "1");
    EXPECT_EQ(SeparatePageValue(page, "a"), "");
    EXPECT_EQ(SeparatePageValue(page, "123"), "");
    EXPECT_EQ(SeparatePageValue(page, "unit"), "");
}

} // namespace
} // namespace ostrel::html

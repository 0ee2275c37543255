#include "services/TagText.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/SlowTagText.h"

namespace ostrel::services {

namespace {

/// Texts put together from pieces that matter to the member under test.
class Mixer {
public:
    explicit Mixer(std::vector<Text> pieces) : pieces_(std::move(pieces)) {}
    Text Next(unsigned most) {
        Text text;
        for (unsigned count = random_() % (most + 1); count > 0; --count)
            text += pieces_[random_() % pieces_.size()];
        return text;
    }

private:
    std::vector<Text> pieces_;
    std::mt19937 random_{20};
};

} // namespace

TEST(TagText, StripTags) {
    struct Row {
        Text html, expected;
    };
    for (const auto& [html, expected] : std::vector<Row>{
             {"", ""},
             {" \r\n ", ""},
             {"plain", "plain"},
             {" a  b \r\n", "a b"},
             {"a&nbsp;&nbsp;b", "a b"},
             {"a&amp;b", "a&amp;b"},
             {"<P>a<BR>b", "a\r\nb"},
             {"<P>one</P><P>two</P>", "one\r\n\r\ntwo"},
             {"x<P ALIGN=LEFT>y", "xy"},
             {"a<TD>b", "a b"},
             {"a<td nowrap>b", "a b"},
             {"a <b", "a"},
             {"a<BR><br clear=\"all\"> <BR> <BR>b", "a\r\n\r\nb"},
             {"a<B TITLE=\">\">b</B>c", "abc"},
             {"a<B TITLE='>'>b", "a'>b"},
             {"a<B TITLE=\"b>c", "a"},
             {"<OL><LI>one<LI>two</OL>end", "one\r\ntwo\r\n\r\nend"},
             {"a<BR&nbsp;x>b", "a\r\nb"},
             {"a\xA0"
              "b\tc",
              "a\xA0"
              "b\tc"},
         })
        EXPECT_EQ(StripTags(html), expected) << html;
}

TEST(TagText, ExtractContent) {
    struct Row {
        Text html;
        bool removeDouble, removeSpecials;
        Text expected;
    };
    for (const auto& [html, removeDouble, removeSpecials, expected] : std::vector<Row>{
             {"a&amp;b", false, false, "a&amp;b"},
             {"a&amp;b", false, true, "a&b"},
             {"&amp;lt;&amp;nbsp;&amp;amp;lt;", false, true, "<&nbsp;&amp;lt;"},
             {"20&def;C &euro;5", false, true,
              "20\xB0"
              "C \x80"
              "5"},
             {"a  b\r\n\r\nc", false, false, "a  b\r\n\r\nc"},
             {"a  b\r\n\r\nc", true, false, "a b c"},
             {"a <I> b", true, false, "a  b"},
             {"<UL><LI>one<LI>two</UL>", false, true, "one\r\n  two"},
             {"<UL><LI>one<LI>two</UL>", false, false, "one\r\ntwo"},
             {"a<BR\r\nCLEAR>b", true, false, "a\r\nb"},
             {"a<BR\r\nCLEAR>b", false, false, "ab"},
             {"&nbsp;a&nbsp;", false, true, "a"},
         })
        EXPECT_EQ(ExtractContent(html, removeDouble, removeSpecials), expected) << html;
}

TEST(TagText, OnePassEqualsTheRounds) {
    Mixer mixer({" ",     " ",    "\r",   "\n",    "a",    "&nbsp;", "&amp;", "&lt;",
                 "nbsp;", "lt;",  "amp;", "&",     "<BR>", "<br ",   "<P>",   "<P ",
                 "<LI>",  "<TD>", "<tr ", "</UL>", "<I>",  ">",      "\"",    "<"});
    for (int i = 0; i < 15000; ++i) {
        const Text html = mixer.Next(14);
        ASSERT_EQ(StripTags(html), test::SlowTagText::StripTags(html)) << html;
        for (int flags = 0; flags < 4; ++flags)
            ASSERT_EQ(ExtractContent(html, flags & 1, flags & 2),
                      test::SlowTagText::ExtractContent(html, flags & 1, flags & 2))
                << html << " " << flags;
    }
}

TEST(TagText, FindTagClose) {
    struct Row {
        Text text;
        Long start, expected;
    };
    for (const auto& [text, start, expected] : std::vector<Row>{
             {"<A>", 2, 3},
             {"<A TITLE=\">\">", 2, 13},
             {"a\">\"", 1, 0},
             {"a\">\"", 3, 3}, // the flag is off at the start
             {"'>'", 1, 2},
             {"<A", 1, 0},
             {">", 2, 0},
             {">", -5, 1},
         })
        EXPECT_EQ(FindTagClose(text, start), expected) << text;
}

TEST(TagText, RemoveComments) {
    struct Row {
        Text html;
        bool trim;
        Text expected;
    };
    for (const auto& [html, trim, expected] : std::vector<Row>{
             {"a<!--b-->c", false, "a<!--b-->c"},
             {"a<!-- b", false, "a"},
             {" a<!-- b -->c ", false, " ac "},
             {" a<!-- b -->c ", true, "ac"},
             {"a<!-- -->b", false, "ab"},
             {"a<!-- x --><!-- y -->b", false, "ab"},
             {"a<!<!-- x -->-- b -->c", false, "a<!-- b -->c"}, // what comes together at the cut stays
         })
        EXPECT_EQ(RemoveComments(html, trim), expected) << html;
}

TEST(TagText, RemoveBetweenTags) {
    struct Row {
        Text html, tag, tagEnd, expected;
    };
    for (const auto& [html, tag, tagEnd, expected] : std::vector<Row>{
             {"a<b>x</B>c<B>y</b>d", "B", "", "acd"},
             {"a<B X>x</B>c", "B", "", "a<B X>x</B>c"},
             {"a<B>x<I>y<B>z", "B", "I", "ay<B>z"},
             {"</B>a<B>x", "B", "", "</B>a<B>x"},
             {"a<HR>b<HR>c", "HR", "HR", "abc"},
         })
        EXPECT_EQ(RemoveBetweenTags(html, tag, tagEnd, false), expected) << html;
}

TEST(TagText, RemoveDoubleTag) {
    struct Row {
        Text html, tag, subTag, expected;
    };
    for (const auto& [html, tag, subTag, expected] : std::vector<Row>{
             {"<B>x</B>", "b", "", "<B>x</B>"},
             {"<b>x</b><b>y", "b", "", "xy"},
             {"<<b>/b>", "b", "", ""},
             {"<FONT   SIZE=1>x</font>y", "FONT", "SIZE", "xy"},
             {"<FONT FACE=1>x</FONT>", "FONT", "SIZE", "<FONT FACE=1>x</FONT>"},
             {"<A HREF=x><A HREF=y>1</A>2</A>3", "A", "HREF", "123"},
             {"<A HREF=x", "A", "HREF", "<A HREF=x"},
             {"<A HREF=x>1", "A", "HREF", "1"},
         })
        EXPECT_EQ(RemoveDoubleTag(html, tag, subTag, false), expected) << html;

    Mixer mixer({"<a ", "<A  ", "x", "x>", ">", "</a>", "</", "a>", "<", "a", " ", "y"});
    for (int i = 0; i < 15000; ++i) {
        const Text html = mixer.Next(20);
        ASSERT_EQ(RemoveDoubleTag(html, "a", "x", false), test::SlowTagText::RemoveDoubleTag(html, "a", "x"))
            << html;
    }
}

TEST(TagText, CellNumericValue) {
    struct Row {
        Text cell;
        Double expected;
    };
    for (const auto& [cell, expected] : std::vector<Row>{
             {"", 0},
             {"12", 12},
             {"<B>-1.5</B>", -1.5},
             {"&nbsp;7", 7},
             {"1,000", 1},
             {"1e5", 1},
             {"+.5x", 0.5},
             {"-", 0},
             {".", 0},
             {"abc", 0},
             {"1.2.3", 1.2},
             {"- 5", 0},
             {"<TD>3 000", 3},
             {"$5", 0},
         })
        EXPECT_EQ(CellNumericValue(cell), expected) << cell;
}

TEST(TagText, CellTimeSeconds) {
    struct Row {
        Text cell;
        Long expected;
    };
    for (const auto& [cell, expected] : std::vector<Row>{
             {"90", 90},
             {"1:30", 90},
             {"1:02:03", 3723},
             {":30", 30},
             {"5:", 300},
             {"1::", 3600},
             {":", 0},
             {"::", 0},
             {"1:2:3:4", 0},
             {"1h", 0},
             {"", 0},
             {"-1:00", 0},
             {"<B>1:00</B>", 60},
             {"1 :00", 0},
             {"1:75", 135},
             {"99999999999:00", 0},
         })
        EXPECT_EQ(CellTimeSeconds(cell), expected) << cell;
}

} // namespace ostrel::services

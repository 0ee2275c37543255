#include "services/TagExtraction.h"

#include <gtest/gtest.h>

#include <vector>

namespace ostrel::services {

TEST(TagExtraction, ExtractTag) {
    struct Row {
        Text html, expected, remain;
    };
    for (const auto& [html, expected, remain] : std::vector<Row>{
             {"a <b>c", "<b>", "c"},
             {"a <b", "", ""},
             {"a b", "", ""},
             {"<A TITLE=\">\">x", "<A TITLE=\">\">", "x"},
             {"<A TITLE='>'>x", "<A TITLE='>", "'>x"},
         }) {
        Text left = "before";
        EXPECT_EQ(ExtractTag(html, left), expected) << html;
        EXPECT_EQ(left, remain) << html;
    }
}

TEST(TagExtraction, ExtractSingleTag) {
    struct Row {
        Text html, tag;
        bool trim, include;
        Text expected, remain;
    };
    for (const auto& [html, tag, trim, include, expected, remain] : std::vector<Row>{
             {"<IMG SRC=\"a>b.gif\" BORDER=\"0\"> x", "img", false, false, "SRC=\"a>b.gif\" BORDER=\"0\"",
              " x"},
             {"<BR CLEAR=\"ALL\"><BR>z", "BR", false, true, "<BR>", "z"},
             {"<br>z", "BR", false, true, "<br>", "z"},
             {"<BR>", "BR", false, false, "", ""},
             {"<BR CLEAR=\"ALL\">z", "br", false, true, "<BR CLEAR=\"ALL\">", "z"},
             {"<BR  CLEAR \r\n>z", "BR", true, false, "CLEAR", "z"},
             {"<BR  CLEAR >z", "BR", false, false, " CLEAR ", "z"},
             {"<BR CLEAR", "BR", false, true, "", ""},
             {"<BRX>", "BR", false, true, "", ""},
         }) {
        Text left = "before";
        EXPECT_EQ(ExtractSingleTag(html, tag, trim, include, left), expected) << html;
        EXPECT_EQ(left, remain) << html;
    }
}

TEST(TagExtraction, ExtractDoubleTag) {
    struct Row {
        Text html;
        bool trim, include;
        Text expected, remain;
    };
    for (const auto& [html, trim, include, expected, remain] : std::vector<Row>{
             {"a<b>x</B>y", false, true, "<b>x</B>", "y"},
             {"a<B>x</B>y", false, false, "x", "y"},
             {"a<B> x \r\n</B>y", true, false, "x", "y"},
             {"a<B></B>y", false, false, "", ""},
             {"</B><B>x</B>", false, true, "", "<B>x</B>"},
             {"</B><B>x</B>", false, false, "", ""},
             {"<B ID=1>x</B>y", false, false, "x", "y"},
             {"<B ID=1>x</B>y", false, true, "<B ID=1>x</B>", "y"},
             {"<B ID=1></B>y", false, false, "", "y"},
             {"</B><B ID=1>x</B>", false, false, "", ""},
             {"<B ID=\"1</B>2\">x</B>", false, false, "", ""}, // the closing tag ends the scan, quoted or not
             {"<B>one<I>two</B><B ID=1>", false, false, "two", "<B ID=1>"}, // the first stretch is lost
             {"<B>one</B><B ID=1>x</B>", false, false, "", ""},
             {"<B>one", false, true, "", ""},
             {"<B>1<B>2</B>3</B>", false, true, "<B>1<B>2</B>", "3</B>"},
         }) {
        Text left = "before";
        EXPECT_EQ(ExtractDoubleTag(html, "B", trim, include, left), expected) << html;
        EXPECT_EQ(left, remain) << html;
    }
}

TEST(TagExtraction, TheRemainderMayBeTheInput) {
    Text text = "<A HREF=\"1\"><A HREF=\"2\">";
    EXPECT_EQ(ExtractSingleTag(text, "A", false, false, text), "HREF=\"1\"");
    EXPECT_EQ(ExtractSingleTag(text, "A", false, false, text), "HREF=\"2\"");
    EXPECT_EQ(text, "");
}

TEST(TagExtraction, ExtractTagValues) {
    struct Row {
        Text tag;
        Long maximum;
        Array<Text> names, values;
    };
    for (const auto& [tag, maximum, names, values] : std::vector<Row>{
             {"<TD WIDTH=50 ALIGN=\"left\">", 9, {}, {}},
             {"<TD width=\"50\" Align = \"left\">", 9, {"WIDTH"}, {"50"}},
             {"<TD width =\"50\"Align=\"left\">", 9, {"WIDTH", "ALIGN"}, {"50", "left"}},
             {" A=\"1\" B=\"\" ", 9, {"A", "B"}, {"1", ""}},
             {"A=\"1\" B=\"2\" C=\"3\"", 2, {"A", "B"}, {"1", "2"}},
             {"A=\"1\"", 0, {}, {}},
             {"CHECKED NAME=\"x\"", 9, {"CHECKED NAME"}, {"x"}},
             {"A='1' B=\"2\"", 9, {}, {}},
             {"A=\"1", 9, {}, {}},
             {"A=", 9, {}, {}},
             {"=\"1\"", 9, {}, {}},
             {"<TD>", 9, {}, {}},
             {"\xE4=\"1\"", 9, {"\xC4"}, {"1"}},
         }) {
        Array<Text> foundNames, foundValues;
        EXPECT_EQ(ExtractTagValues(tag, foundNames, foundValues, maximum), names.Count()) << tag;
        EXPECT_EQ(foundNames, names) << tag;
        EXPECT_EQ(foundValues, values) << tag;
    }
    Array<Text> names(3), values{"old", "old", "old"};
    EXPECT_EQ(ExtractTagValues("A=\"1\"", names, values, 3), 1);
    EXPECT_EQ(values, (Array<Text>{"1", "old", "old"}));
}

TEST(TagExtraction, ExtractTagValue) {
    Text eleven = "<X ";
    for (char c = 'A'; c <= 'K'; ++c) eleven += Text(1, c) + "=\"" + c + "\" ";
    struct Row {
        Text tag, name, expected;
    };
    for (const auto& [tag, name, expected] : std::vector<Row>{
             {"COLSPAN = \"3\"", "COLSPAN", ""},
             {"COLSPAN =\"3\"", "colspan", "3"},
             {"ALT=\"COLSPAN\"", "COLSPAN", ""},
             {eleven + ">", "J", "J"},
             {eleven + ">", "K", ""},
             {"A=\"1\"", "", ""},
             {"", "A", ""},
         })
        EXPECT_EQ(ExtractTagValue(tag, name), expected) << tag << " " << name;
}

TEST(TagExtraction, MetaTags) {
    const Text html =
        "<META CONTENT=\"c0\"><meta name=\"Author\" content=\"a\"><META NAME=\"author\" CONTENT=\"b\" "
        "CONTENT=\"c\"><META NAME=\"empty\">rest";
    struct Row {
        Text html, name, expected, remain;
    };
    for (const auto& [page, name, expected, remain] : std::vector<Row>{
             {html, "AUTHOR", "a", html.substr(html.find("<META NAME=\"author\""))},
             {html, "empty", "", "rest"},
             {html, "none", "", ""},
             {"<META NAME=\"a\" CONTENT=\"1\"><META>", "a", "", ""}, // a plain tag ends the walk
             {"<META NAME=\"a\" CONTENT=\"1\" CONTENT=\"2\">", "a", "2", ""},
         }) {
        Text remainder = "before";
        EXPECT_EQ(ExtractMetaTag(page, name, remainder), expected) << name;
        EXPECT_EQ(remainder, remain) << name;
    }

    Text name = "x", content = "y";
    EXPECT_TRUE(ExtractMetaTagValues(" <META NAME=\"n\" CONTENT=\"c\"> ", name, content));
    EXPECT_EQ(name + content, "nc");
    EXPECT_FALSE(ExtractMetaTagValues("<META NAME=\"n\">", name, content));
    EXPECT_EQ(name + content, "");
    EXPECT_FALSE(ExtractMetaTagValues(" ", name, content));
}

TEST(TagExtraction, AllValues) {
    const Text links = "<A HREF=\"1\">x</A><A HREF=\"2\">y</A><a href=\"1\">z</a><A NAME=\"n\">t</A>end";
    Array<Text> values;
    Text remain;
    EXPECT_EQ(ExtractAllSingleTagValues(links, "A", "HREF", values, 9, remain), 2);
    EXPECT_EQ(values, (Array<Text>{"1", "2"}));
    EXPECT_EQ(remain, "");

    values.Clear();
    EXPECT_EQ(ExtractAllDoubleTagValues(links, "A", "HREF", values, 1, remain), 1);
    EXPECT_EQ(values, Array<Text>{"1"});
    EXPECT_EQ(remain, "y</A>"); // of the tag at which the room ran out

    EXPECT_EQ(ExtractAllDoubleTagValues("</A>a<A HREF=\"1\">x</A>", "A", "HREF", values, 9, remain), 0);
    EXPECT_EQ(remain, "a<A HREF=\"1\">x</A>");
}

// Each step would search the rest of the page for a tag that never comes.
TEST(TagExtraction, WalksStayLinear) {
    Text page;
    for (int i = 0; i < 30'000; ++i) page += "<A HREF=\"" + std::to_string(i) + "\">x</A>";
    Array<Text> values;
    Text remain;
    EXPECT_EQ(ExtractAllSingleTagValues(page, "A", "HREF", values, 1'000'000, remain), 30'000);
    EXPECT_EQ(ExtractAllDoubleTagValues(page, "A", "HREF", values, 1'000'000, remain), 30'000);
    EXPECT_EQ(values.Get(30'000), "29999");
}

} // namespace ostrel::services

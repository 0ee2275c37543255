#include "html/Elements.h"

#include <gtest/gtest.h>

#include "html/PageWorld.h"

namespace ostrel::html {
namespace {

TEST(Elements, AddHTMLTag) {
    const struct {
        Text tag, name, value, expected;
    } rows[] = {
        {"", "NOWRAP", "", "NOWRAP"},
        {"", "WIDTH", "5", "WIDTH=\"5\""},
        {"  <TD ", "A", "", "<TD  A"},
        {"<BODY BGCOLOR=\"#FFFFFF\"", "bgcolor", "RED", "<BODY BGCOLOR=\"#FFFFFF\""},
        {"ALIGN=\"LEFT\"", "align", "RIGHT", "ALIGN=\"LEFT\""},
        {"VALIGN=\"TOP\"", "ALIGN", "LEFT", "VALIGN=\"TOP\" ALIGN=\"LEFT\""},
        {"NOWRAP", "NOWRAP", "", "NOWRAP NOWRAP"}, // only a name with "=" counts as there
    };
    for (const auto& row : rows) {
        Text tag = row.tag;
        AddHTMLTag(tag, row.name, row.value);
        EXPECT_EQ(tag, row.expected) << row.tag << " + " << row.name;
    }
}

TEST(Elements, Simple) {
    const struct {
        Text actual, expected;
    } rows[] = {
        {CreateFontStart("", "", ""), "<FONT>"},
        {CreateFontStart("Arial", "2", "RED"), "<FONT FACE=\"Arial\" SIZE=\"2\" COLOR=\"RED\">"},
        {CreateLine("", "50%", "RED"), "<HR WIDTH=\"50%\" COLOR=\"RED\">"},
        {CreateListItem("", true), ""},
        {CreateListItem("a", true), "<LI>a</P>"},
        {CreateListItem("a", false), "<LI>a"},
        {CreateMeta("n", "c"), "<META NAME=\"n\" CONTENT=\"c\">"},
        {CreateMetaClientPull(-5, "u"), "<META HTTP-EQUIV=\"REFRESH\" CONTENT=\"-5;URL='u'\">"},
        {CreateParagraph(" \r\na b\r\n ", false), "<P>a b</P>"},
        {CreateParagraph("", true), "<CENTER><P></P></CENTER>"},
        {CreateParagraphFixed("", " a"), "<PRE> a</PRE>"},
        {CreateParagraphFixed("<FONT>", "a"), "<FONT><PRE>a</PRE></FONT>"},
        {CreateSpaces(3), "&nbsp;&nbsp;&nbsp;"},
        {CreateSpaces(-1), ""},
        {CreateStringBold(""), ""},
        {CreateStringColour("", "RED", true, true, true), ""},
        {CreateStringColour("<", "", true, true, true), "<FONT><B><I><U><</U></I></B></FONT>"},
        {CreateTableStart("  "), "<TABLE>"},
        {CreateTableCellStart(" A "), "<TD A>"},
    };
    for (const auto& row : rows) EXPECT_EQ(row.actual, row.expected);
}

TEST(Elements, EncodedTexts) {
    const struct {
        Text actual, expected;
    } rows[] = {
        {CreateString("", true, true, true), ""},
        {CreateString("a <&> \"\xA9\xB0\xA0\"", true, true, true),
         "<B><I><U>a &lt;&amp;&gt; &quot;&copy;&def;\xA0&quot;</U></I></B>"},
        {CreateString("a", false, true), "<I>a</I>"},
        {CreateStringURL(" /?:;&@=#%><{}[]\",`^~\\|'"),
         "%20%2F%3F%3A%3B%26%40%3D%23%25%3E%3C%7B%7D%5B%5D%22%27%60%5E%7E%5C%7C'"},
        {CreateAnchorName("12 Rates (net)"), "X-12-RATES-NET-"},
        {CreateAnchorName("(a)"), "X--A-"},
        {CreateAnchorName("<B>\xE4"
                          "b--c.d</B> "),
         "X--B-C.D"},
        {CreateAnchorName("<B> </B>"), ""},
    };
    for (const auto& row : rows) EXPECT_EQ(row.actual, row.expected);
}

TEST(Elements, JavaScript) {
    const struct {
        Text text, script;
    } rows[] = {
        {"a'b\"c\r\nd", "a\\'b\\\"c\\nd"},
        {"me@x.org", "me' + '@' + 'x' + '.' + 'org"},
        {"@a", "'@' + 'a"},
        {"@", "'@' + '"},
        {"a@", "a' + '@"},
        {"a@:", "a' + '@' + ':' + '"},
        {"a@\n:b", "a' + '@' + ':' + 'b"}, // a line feed does not end the run
        {"a@\r:b", "a' + '@' + '\\n' + ':' + 'b"},
    };
    EXPECT_EQ(CreateStringJavaScript(""), "");
    for (const auto& row : rows)
        EXPECT_EQ(CreateStringJavaScript(row.text),
                  "<SCRIPT language=\"JavaScript\"><!-- Begin\r\ndocument.write('" + row.script +
                      "');\r\n// End --></SCRIPT>");
}

TEST(Elements, ParagraphsFromText) {
    const struct {
        Text text;
        bool breaks, multiple, ignoreReturn, ignoreLineFeed;
        Text expected;
    } rows[] = {
        {"", true, true, false, false, ""},
        {"a < b", true, false, false, false, "<P>a &lt; b</P>"},
        {"a\r\nb", true, false, false, false, "<P>a<BR>\r\nb</P>"},
        {"a\r\n\r\n\r\nb", false, false, false, false, "<P>a</P>\r\n\r\n<P>b</P>"},
        {"a\r\n \r\nb", true, false, false, false, "<P>a<BR>\r\n <BR>\r\nb</P>"},
        {"a\r\nb", true, true, false, false, "<P>a<BR>\r\n<BR>\r\nb</P>"},
        {"a\r\nb", true, true, true, false, "<P>a<BR>\r\nb</P>"},
        {"a\r\nb", true, true, true, true, "<P>ab</P>"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CreateParagraphsFromText(row.text, row.breaks, row.multiple, row.ignoreReturn,
                                           row.ignoreLineFeed),
                  row.expected);
}

TEST(Elements, LinkSplit) {
    test::PageWorld world;
    const struct {
        Text description, expected;
    } rows[] = {
        {"a", "[a]"},
        {" a ", "[ a ]"}, // blanks move only where there are lines
        {"", "[]"},
        {"a<br>b", "[a]<BR>[b]"},
        {" &nbsp;a &NBSP;<BR> b", " &nbsp;[a] &NBSP;<BR> [b]"},
        {"<BR>a<BR><BR>", "<BR>[a]<BR><BR>"},
        {"a<BR> &nbsp; <BR>b", "[a]<BR> &nbsp; <BR>[b]"},
        {"a</p>b<BR>c</P>", "[a]</p>b<BR>c</P>"},
        {"a<BR>b </P><P>c", "[a]<BR>[b] </P><P>c"},
    };
    for (const auto& row : rows) {
        Text expected;
        for (const char c : row.expected)
            expected += c == '[' ? "<A HREF=\"x\" TITLE=\"t\"><B>" : c == ']' ? "</B></A>" : Text(1, c);
        EXPECT_EQ(CreateLinkTitleSplit(world.scope, "x", row.description, "t", true, false, false), expected);
    }
    EXPECT_EQ(CreateLink(world.scope, "x", "d", true, true, true),
              "<A HREF=\"x\" TARGET=\"_blank\"><B><I>d</I></B></A>");
}

TEST(Elements, MissingFilesAreTold) {
    test::PageWorld world;
    world.service.DirectoryHelp = "C:\\pages";
    world.files->Add("C:\\pages\\there.htm", "x");
    const auto heard = [&](bool test, const Text& link) {
        world.log.clear();
        world.help.TestHyperlink = test;
        CreateLinkTitle(world.scope, link, "d", "", false, false, false);
        return world.log.empty() ? Text() : world.log[0];
    };
    const struct {
        Text link, expected;
    } rows[] = {
        {"gone.htm", "HyperlinkMissing C:\\pages\\gone.htm"},
        {"C:\\nowhere\\gone.htm", "HyperlinkMissing C:\\nowhere\\gone.htm"},
        {"there.htm", ""},
        {"a/gone.htm", ""},
        {"#top", ""},
        {"MAILTO:x", ""},
        {"", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(heard(true, row.link), row.expected) << row.link;
        EXPECT_EQ(heard(false, row.link), "") << row.link;
    }
    world.help.HelpRemote = true;
    EXPECT_EQ(heard(true, "gone.htm"), "");
    world.help.HelpRemote = false;

    world.log.clear();
    world.help.TestHyperlink = true;
    CreateLinkTitleSplit(world.scope, "gone.htm", "a<BR> <BR>b", "", false, false, false);
    EXPECT_EQ(world.log.size(), 2u) << "once a line that has text";

    world.log.clear();
    world.help.TestImage = true;
    EXPECT_EQ(CreateImage(world.scope, "gone.gif", "", "", "5", "", "LEFT"),
              "<IMG SRC=\"gone.gif\" BORDER=\"0\" WIDTH=\"5\" ALIGN=\"LEFT\">");
    EXPECT_EQ(CreateImage(world.scope, "", "A", "1", "", "6", ""),
              "<IMG SRC=\"\" ALT=\"A\" BORDER=\"1\" HEIGHT=\"6\">");
    EXPECT_EQ(world.log, std::vector<Text>{"ImageMissing C:\\pages\\gone.gif"});
}

TEST(Elements, Head) {
    test::PageWorld world;
    world.service.ProgramName = "P";
    const Text type = "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1252\">\r\n";
    EXPECT_EQ(CreateHeader(world.scope, "", "", "", "", ""),
              "<HEAD>\r\n\r\n" + type + "<META NAME=\"Generator\" CONTENT=\"P\">\r\n\r\n</HEAD>");
    world.help.HelpTitle = "T";
    world.help.HelpAuthor = "A";
    world.help.HelpCompany = "C";
    world.help.HelpKeywords = "K";
    world.help.HelpDescription = "D";
    world.help.HelpRobots = "R";
    world.help.HelpMeta = "<M>";
    world.help.HelpRefresh = 5;
    world.help.HelpRefreshURL = "not used";
    world.help.HelpRefreshTarget = "u";
    EXPECT_EQ(CreateHeader(world.scope, "", "a", "", "d", ""),
              "<HEAD>\r\n\r\n<TITLE>T</TITLE>\r\n\r\n" + type +
                  "<M>\r\n<META HTTP-EQUIV=\"REFRESH\" CONTENT=\"5;URL='u'\">"
                  "<META NAME=\"Generator\" CONTENT=\"P\">\r\n<META NAME=\"Author\" CONTENT=\"a\">\r\n"
                  "<META NAME=\"Company\" CONTENT=\"C\">\r\n<META NAME=\"Keywords\" CONTENT=\"K\">\r\n"
                  "<META NAME=\"Description\" CONTENT=\"d\">\r\n<META NAME=\"Robots\" CONTENT=\"R\">\r\n"
                  "\r\n</HEAD>");
}

TEST(Elements, Body) {
    test::PageWorld world;
    EXPECT_EQ(CreateBody(world.scope, Rope(" \r\nx\r\n"), {}).ToText(), "<BODY>\r\n\r\nx\r\n\r\n</BODY>");
    world.help.HelpFont = " <FONT> ";
    world.help.HelpBackground = "b.gif";
    world.help.HelpLinkVisibleColour = "V";
    EXPECT_EQ(CreateBody(world.scope, {}, {"", "W", "L", "", "A"}).ToText(),
              "<BODY BACKGROUND=\"b.gif\" BGCOLOR=\"W\" LINK=\"L\" VLINK=\"V\" ALINK=\"A\">\r\n\r\n"
              "<FONT>\r\n\r\n\r\n\r\n</FONT>\r\n\r\n</BODY>");
}

} // namespace
} // namespace ostrel::html

#include "html/PageDocument.h"
#include "html/PageDraft.h"
#include "html/PageSave.h"
#include "html/PageText.h"

#include <gtest/gtest.h>

#include "html/DocumentScan.h"
#include "html/FontType.h"
#include "html/PageWorld.h"

namespace ostrel::html {
namespace {

TEST(PageParts, Fonts) {
    test::PageWorld world;
    world.page.PageFontFace = "Arial";
    world.page.PageFontSize = "3";
    world.fonts.entries[owhFontTitle].colour = "RED";
    world.fonts.entries[owhFontTitle].bold = true;
    world.fonts.entries[owhFontTitle].italic = true;
    world.fonts.entries[owhFontTable].size = "1";
    world.fonts.entries[owhFontTable].bold = true;
    world.fonts.entries[owhFontTableHeader].italic = true;
    world.fonts.entries[owhFontFooter].bold = true;
    const struct {
        Long type;
        Text start, end;
    } rows[] = {
        {owhFontTitle, "<FONT FACE=\"Arial\" SIZE=\"3\" COLOR=\"RED\"><B><I>", "</B></I></FONT>"},
        {owhFontTable, "<FONT FACE=\"Arial\" SIZE=\"1\"><B>", "</B></FONT>"},
        {owhFontTableHeader, "<FONT FACE=\"Arial\" SIZE=\"1\"><I>", "</I></FONT>"},
        {owhFontFooter, "<B>", "</B>"},
        {owhFontBody, "", ""},
        {11, "", ""},
        {-1, "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PageFontStartTag(world.scope, row.type), row.start) << row.type;
        EXPECT_EQ(PageFontEndTag(world.scope, row.type), row.end) << row.type;
    }
    world.fonts.entries[owhFontTableHeader].face = "Own";
    EXPECT_EQ(PageFontStartTag(world.scope, owhFontTableHeader), "<FONT FACE=\"Own\" SIZE=\"3\"><I>");
}

TEST(PageParts, TitleBlock) {
    test::PageWorld world;
    const struct {
        Text title, fallback, block, helpTitle;
    } rows[] = {
        {"", "", "", "kept"},
        {"  ", "", "", "kept"},
        {"  ", "F", "<P>F</P>", "F"},
        {"", "  ", "<P></P>", ""},
        {"<B>first line</B><BR>second line", "F", "<P><B>first line</B><BR>second line</P>",
         "first line - second line"},
        {"a<P>b<BR>c\r\n\r\n\r\nd", "", "<P>a<P>b<BR>c\r\n\r\n\r\nd</P>", "a - b - c - d"},
    };
    for (const auto& row : rows) {
        world.help.HelpTitle = "kept";
        world.page.PageTitle = row.fallback;
        EXPECT_EQ(PageTitleBlock(world.scope, row.title), row.block);
        EXPECT_EQ(world.help.HelpTitle, row.helpTitle) << row.title;
    }
}

TEST(PageParts, FilePath) {
    test::PageWorld world;
    const Text directory = "C:\\pages\\";
    const struct {
        Text file, directoryHelp, path, error;
    } rows[] = {
        {"", directory, "", "File Path has not been defined."},
        {"C:\\gone\\a.htm", "", "C:\\gone\\a.htm", ""},
        {"a.htm", "", "", "Property [DirectoryHelp] has not been defined."},
        {"a.htm", directory + "gone", "", "Property [DirectoryHelp] [" + directory + "gone] does not exist."},
        {"a.htm", directory.substr(0, directory.size() - 1), directory + "a.htm", ""},
    };
    for (const auto& row : rows) {
        world.service.DirectoryHelp = row.directoryHelp;
        Text path = "old", error;
        EXPECT_EQ(PageFilePath(world.scope, row.file, path, error), row.error.empty());
        EXPECT_EQ(path, row.path);
        EXPECT_EQ(error, row.error);
    }
}

TEST(PageParts, DocumentTagsAreFoundWhereverTheyStand) {
    const Text filler(200, '<');
    for (const Text tag : {"<html", "</HTML>", "<Header", "</header>", "<BODY", "</body>"})
        for (std::size_t place = 0; place < 150; ++place) {
            const Text text = filler.substr(0, place) + tag + (place % 2 ? Text() : filler);
            ASSERT_TRUE(HoldsDocumentTags(Rope(text))) << tag << " at " << place;
            ASSERT_FALSE(HoldsDocumentTags(Rope(text.substr(0, place + tag.size() - 1)))) << tag;
            Rope pieces; // of one, two and more bytes, so that every tag straddles borders
            for (std::size_t at = 0, length = 1; at < text.size(); at += length, length = place % 5 + 1)
                pieces.Append(text.substr(at, length));
            ASSERT_TRUE(HoldsDocumentTags(pieces)) << tag << " in pieces";
        }
    EXPECT_FALSE(HoldsDocumentTags(Rope("<head><h1></head></bod><bo dy></header ></body ><!html>")));
    EXPECT_FALSE(HoldsDocumentTags({}));
}

Text Wrapped(test::PageWorld& world, Long width, const Text& text) {
    world.help.HelpPageWidth = width;
    return PageLineWrap(world.scope, Rope(text)).ToText();
}

TEST(PageParts, LineWrap) {
    test::PageWorld world;
    const Text forty(40, 'x'), word(20, 'w');
    const Text longTag = "<A HREF=\"" + forty + "\">";
    const struct {
        const char* what;
        Text text, expected;
    } rows[] = {
        {"the last line too ends with CR LF; a LF alone is no line end", "a\r\n\r\nb\nc",
         "a\r\n\r\nb\nc\r\n"},
        {"a CR at the end makes no line, a CR LF an empty one", "a\r\rb\r\n", "a\r\n\r\nb\r\n\r\n"},
        {"a line as long as the width", forty, forty + "\r\n"},
        {"the blank behind the width, which stays on its line", forty + " y", forty + " \r\ny\r\n"},
        {"the last blank before it", word + " " + word + " y", word + " \r\n" + word + " y\r\n"},
        {"no blank at all", forty + "xx", forty + "xx\r\n"},
        {"the first blank behind it", forty + "xx y z", forty + "xx \r\ny z\r\n"},
        {"a tag is never broken for itself", longTag + "y", longTag + "y\r\n"},
        {"text behind a long tag breaks at its own blank", longTag + "a b c", longTag + "a \r\nb c\r\n"},
        {"the last blank may lie in a tag", "<IMG ALT=1 SRC=2>" + word + word,
         "<IMG ALT=1 \r\nSRC=2>" + word + word + "\r\n"},
        {"text between tags is filled up to the width", word + " <B>" + word + " a</B>",
         word + " \r\n<B>" + word + " a</B>\r\n"},
        {"preformatted text stays", "<PRE>" + forty + " a</PRE>" + word + " " + word,
         "<PRE>" + forty + " a</PRE>" + word + " \r\n" + word + "\r\n"},
        {"up to an end in a short line",
         "<pre>" + forty + " a\r\n" + forty + " b\r\n</PRE> c\r\n" + forty + " d",
         "<pre>" + forty + " a\r\n" + forty + " b\r\n</PRE> c\r\n" + forty + " \r\nd\r\n"},
        {"a tag that never ends", forty + "<A " + word + " " + word,
         forty + "<A " + word + " " + word + "\r\n"},
    };
    for (const auto& row : rows) EXPECT_EQ(Wrapped(world, 40, row.text), row.expected) << row.what;
    EXPECT_EQ(Wrapped(world, 39, forty + " a"), forty + " a");
    const Text longest = Text(24999, 'a') + " " + Text(25000, 'b');
    EXPECT_EQ(Wrapped(world, 40, longest), Text(24999, 'a') + " \r\n" + Text(25000, 'b') + "\r\n");
    EXPECT_EQ(Wrapped(world, 40, longest + "b"), longest + "b");
}

TEST(PageParts, CreatePage) {
    test::PageWorld world;
    world.page.PageBodyPrefix = "pre";
    world.page.PageBodySuffix = "post";
    world.help.HelpTitle = "T";
    const Text body = "<BODY>\r\n\r\npre\r\n\r\nbodypost\r\n\r\n</BODY>";
    const Text page = CreatePage(world.scope, Rope("body")).ToText();
    EXPECT_TRUE(page.starts_with("<HTML>\r\n\r\n<HEAD>\r\n\r\n<TITLE>T</TITLE>")) << page;
    EXPECT_TRUE(page.ends_with("</HEAD>\r\n\r\n" + body + "\r\n\r\n</HTML>")) << page;
    EXPECT_EQ(world.page.PageBody.ToText(), body);
    EXPECT_EQ(world.log, std::vector<Text>{"PageCreateBody " + body});

    CreatePage(world.scope, Rope("second"));
    EXPECT_EQ(world.page.PageBody.ToText(), body) << "the first one stays";
    world.log.clear();
    EXPECT_EQ(CreatePage(world.scope, Rope("<BODY BGCOLOR=red>")).ToText(), "<BODY BGCOLOR=red>");
    EXPECT_TRUE(world.log.empty());
}

TEST(PageParts, Save) {
    test::PageWorld world;
    PageSaved saved = SavePage(world.scope, "");
    EXPECT_FALSE(saved.built);
    EXPECT_EQ(saved.error, "File Path has not been defined.");
    saved = SavePage(world.scope, "C:\\pages\\a.htm");
    EXPECT_FALSE(saved.built);
    EXPECT_EQ(saved.error, "No Help Page defined.");

    world.help.HelpPart2 = Rope(" \r\n");
    world.help.HelpPart3 = Rope("c");
    world.help.HelpRefresh = 5;
    world.page.ProgressRecords = 7;
    world.log.clear();
    saved = SavePage(world.scope, "C:\\pages\\a.htm");
    EXPECT_TRUE(saved.built);
    EXPECT_EQ(saved.error, "");
    EXPECT_TRUE(saved.newFile);
    const std::string content = world.Content("C:\\pages\\a.htm");
    EXPECT_EQ(saved.bytesWritten, static_cast<Long>(content.size()));
    EXPECT_NE(content.find("CONTENT=\"5;URL='a.htm'\""), std::string::npos);
    EXPECT_NE(content.find("<BODY>\r\n\r\nc\r\n\r\n</BODY>"), std::string::npos);
    EXPECT_EQ(world.log, (std::vector<Text>{"PageCreateProgress InternalBuild - Start 7",
                                            "PageCreateProgress InternalBuild - CreatePage 7",
                                            "PageCreateBody <BODY>\r\n\r\nc\r\n\r\n</BODY>",
                                            "PageCreateProgress InternalBuild - Finish 7"}));

    saved = SavePage(world.scope, "C:\\pages\\a.htm");
    EXPECT_TRUE(saved.built);
    EXPECT_FALSE(saved.newFile) << "unchanged";
    EXPECT_EQ(world.files->replaces, 1);

    saved = SavePage(world.scope, "C:\\gone\\a.htm");
    EXPECT_TRUE(saved.built);
    EXPECT_TRUE(saved.error.starts_with("Help Page can't be saved - ")) << saved.error;
    EXPECT_FALSE(saved.newFile);
}

TEST(PageParts, InitialiseAndReset) {
    test::PageWorld world;
    world.page.PageAuthor = "A";
    world.page.PageRefreshURL = "u";
    world.page.PageRefresh = 3;
    world.page.PagePageWidth = 60;
    world.page.PageTitle = "T";
    world.page.PageBody = Rope("b");
    world.help.HelpCompany = "old";
    world.help.HelpPart1 = Rope("old");
    world.help.HelpDelay = 9;
    PageInitialise(world.scope);
    EXPECT_EQ(world.help.HelpAuthor, "A");
    EXPECT_EQ(world.help.HelpCompany, "");
    EXPECT_EQ(world.help.HelpRefreshURL, "u");
    EXPECT_EQ(world.help.HelpRefreshTarget, "u");
    EXPECT_EQ(world.help.HelpRefresh, 3);
    EXPECT_EQ(world.help.HelpPageWidth, 60);
    EXPECT_EQ(world.help.HelpTitle, "T");
    EXPECT_EQ(world.help.HelpDelay, 9);
    EXPECT_TRUE(world.help.HelpPart1.Empty());
    EXPECT_TRUE(world.page.PageBody.Empty());

    HelpPageInitialise(world.help);
    EXPECT_EQ(world.help.HelpRefreshURL, "");
    EXPECT_EQ(world.help.HelpRefreshTarget, "u");
    EXPECT_EQ(world.help.HelpRefresh, 0);
    EXPECT_EQ(world.help.HelpPageWidth, 60);

    world.fonts.entries[10].bold = true;
    world.page.PageBody = Rope("b");
    ResetPage(world.page, world.fonts);
    EXPECT_EQ(world.page.PageAuthor, "");
    EXPECT_EQ(world.page.PageRefresh, 0);
    EXPECT_TRUE(world.page.PageBody.Empty());
    EXPECT_FALSE(world.fonts.entries[10].bold);
}

} // namespace
} // namespace ostrel::html

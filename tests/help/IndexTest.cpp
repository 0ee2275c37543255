#include <gtest/gtest.h>

#include "help/IndexLetter.h"
#include "help/IndexPage.h"
#include "html/PageWorld.h"
#include "platform/headless/VirtualClock.h"

namespace ostrel::help {

namespace {

struct IndexWorld : test::PageWorld {
    void Add(const Text& name, const Text& link = {}, bool indent = false, const Text& extra = {},
             const Text& character = {}) {
        store.Add({link, name, indent, extra, character});
    }
    Text Make() { return CreateIndex(scope, store, look); }
    IndexStore store;
    IndexLook look;
};

constexpr TextView Start = "<TABLE CELLSPACING=\"0\" BORDER=\"0\" CELLPADDING=\"0\">\r\n\r\n";
constexpr TextView RowStart = "<TR VALIGN=\"TOP\">";

Text Section(const Text& letter, const Text& entry) {
    return "<TR VALIGN=\"TOP\"><TD><B><A NAME=\"" + letter + "\">" + letter +
           "</B></TD>\r\n<TD><FONT SIZE=\"1\"> &nbsp;</FONT></TD>\r\n<TD>" + entry + "</TD></TR>\r\n\r\n";
}

Text Further(const Text& entry, const Text& anchor = {}) {
    return "<TR VALIGN=\"TOP\"><TD COLSPAN=\"2\"><FONT SIZE=\"1\">" + anchor + "&nbsp;</FONT></TD>\r\n<TD>" +
           entry + "</TD></TR>\r\n\r\n";
}

} // namespace

TEST(Index, EntriesAndSections) {
    IndexWorld world;
    EXPECT_EQ(world.Make(), "");
    world.Add("under", "", true);
    world.Add("1st");
    world.Add("map", "m.htm");
    world.Add("more", "n.htm", true, "more");
    world.Add("Mice", "", true, "", "bees");
    world.Add("2nd");
    world.Add("zebra", "", false, "", "b");
    world.Add("\xC4rger");
    EXPECT_EQ(world.Make(), Text(Start) + Further(" &nbsp; &nbsp;under") + Further("1st") +
                                Section("M", "<A HREF=\"m.htm\">map</A>") +
                                Further(" &nbsp; &nbsp;<A HREF=\"n.htm\">more</A>", "<A NAME=\"more\">") +
                                Section("B", " &nbsp; &nbsp;Mice") + Section("", "2nd") +
                                Section("B", "zebra") + Section("", "\xC4rger") + "</TABLE>");
    world.store.Clear();
    EXPECT_EQ(world.Make(), "");
}

TEST(Index, LookAndLetters) {
    IndexWorld world;
    world.help.HelpFont = "<FONT SIZE=\"2\">";
    world.look = {.font = {},
                  .letterFont = "<FONT COLOR=\"red\">",
                  .spaceSections = true,
                  .sectionSpacer = "-s-",
                  .columnSpacer = "-c-",
                  .indent = "-i-",
                  .lettersAbove = true,
                  .lettersBelow = true};
    world.Add("a", "", true, "", "a");
    world.Add("B", "", false, "here");
    Text letters = "<P><FONT COLOR=\"red\"><A HREF=\"#A\"><B>A</B></A> <A HREF=\"#B\"><B>B</B></A>";
    for (char c = 'C'; c <= 'Z'; ++c) letters += Text(" <B>") + c + "</B>";
    letters += "</FONT></P>";
    const auto row = [](const Text& head, const Text& entry) {
        return Text(RowStart) + "<TD><FONT COLOR=\"red\">" + head +
               "</B></FONT></TD>\r\n<TD><FONT SIZE=\"1\">-c-" + "</FONT></TD>\r\n<TD><FONT SIZE=\"2\">" +
               entry + "</FONT></TD></TR>\r\n\r\n";
    };
    const Text table = Text(Start) + row("<B><A NAME=\"A\">A", "-i-a") + Text(RowStart) +
                       "<TD COLSPAN=\"3\"><FONT SIZE=\"1\">-s-</FONT></TD></TR>\r\n\r\n" +
                       row("<A NAME=\"here\"><B><A NAME=\"B\">B", "B") + "</TABLE>";
    EXPECT_EQ(world.Make(), letters + "\r\n\r\n" + table + "\r\n\r\n" + letters);
    world.look.lettersAbove = false;
    EXPECT_EQ(world.Make(), table + "\r\n\r\n" + letters);
    world.look.lettersAbove = true;
    world.look.lettersBelow = false;
    EXPECT_EQ(world.Make(), letters + "\r\n\r\n" + table);
}

TEST(Index, StopsAndChangesInItsYields) {
    IndexWorld world;
    world.platform.clock = std::make_unique<VirtualClock>();
    for (const char* name : {"a", "b", "c"}) world.Add(name);
    world.platform.clock->Post([&] { world.store.Clear(); });
    EXPECT_EQ(world.Make(), Text(Start) + Section("A", "a") + "</TABLE>");
    for (const char* name : {"a", "b", "c"}) world.Add(name);
    world.run.StopRequested = true;
    EXPECT_EQ(world.Make(), Text(Start) + Section("A", "a") + "</TABLE>");
}

// Quadratic work would outlast any patience.
TEST(Index, ManyEntriesStayLinear) {
    IndexWorld world;
    for (int i = 0; i < 100'000; ++i) world.Add("Entry " + std::to_string(i), "page.htm");
    EXPECT_GT(world.Make().size(), 10'000'000u);
}

TEST(Index, LettersOfReaders) {
    struct Row {
        Text name, letter, key;
    };
    for (const auto& [name, letter, key] : std::vector<Row>{
             {"apple", "A", "APPLE"},
             {"\xC9tude", "E", "ETUDE"},
             {"\x9Cuvre", "O", "OEUVRE"},
             {"\x8Akoda", "S", "SKODA"},
             {"\xFFz", "Y", "YZ"},
             {"stra\xDF"
              "e",
              "S", "STRASSE"},
             {"\xD7 times", "", " \xD7 TIMES"},
             {"_exit", "", " _EXIT"},
             {"3D", "", " 3D"},
             {"", "", " "},
         }) {
        EXPECT_EQ(IndexLetter(name), letter) << name;
        EXPECT_EQ(IndexSortKey(name), key);
    }
}

} // namespace ostrel::help

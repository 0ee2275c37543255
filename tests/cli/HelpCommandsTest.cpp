#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "support/RunReport.h"

// `ostrel search` and `ostrel index` as a user runs them.

namespace {

using ostrel::test::Outcome;
using ostrel::test::RunOstrel;
using ostrel::test::TemporaryDirectory;

std::string Page(const std::string& title, const std::string& body) {
    return "<html><head><title>" + title + "</title></head><body>" + body + "</body></html>";
}

/// Pages in both encodings, one of them in a directory below.
struct HelpPages : TemporaryDirectory {
    HelpPages() {
        std::filesystem::create_directories(Path("d/deep"));
        Write("d/pear.htm", Page("Pear", "A pear is a pear; R&amp;D knows <b>pears</b>."));
        Write("d/deep/zo\xC3\xAB.html",
              Page("Zo\xC3\xAB", "<h2 id=\"h\">Pear</h2>\xE4\xB8\xAD tree and a pear tree \x1B[2J"));
        Write("d/old.htm", Page("\xC9toile", "<h2>Zo\xEB</h2>apple"));
        Write("d/notes.txt", "pear");
    }
};

TEST(SearchCommand, RanksPages) {
    const HelpPages directory;
    const struct {
        std::string arguments;
        int status;
        std::string out;
    } rows[] = {
        {"d apple", 0, " 50.0 %  \xC3\x89toile  d/old.htm\n"},
        {"d APPLE -c", 1, ""},
        {"d tree -w -s", 0,
         " 66.7 %  Zo\xC3\xAB  d/deep/zo\xC3\xAB.html\n         Pear\xE4\xB8\xAD tree and a pear tree  [2J\n"},
        {"d 'r&d'", 0, " 50.0 %  Pear  d/pear.htm\n"},
        {"d '\xE4\xB8\xAD'", 0, " 50.0 %  Zo\xC3\xAB  d/deep/zo\xC3\xAB.html\n"},
        {"d '\xC3\x89TOILE' --title", 0, "100.0 %  \xC3\x89toile  d/old.htm\n"},
        {"d pear --title", 0, "100.0 %  Pear  d/pear.htm\n"},
        {"d apple --header", 1, ""},
        {"d 'id=\"h\"' --body --tags", 0, " 50.0 %  Zo\xC3\xAB  d/deep/zo\xC3\xAB.html\n"},
        {"d ''", 2, ""},
        {"missing x", 2, ""},
        {"d x -n 0", 2, ""},
    };
    for (const auto& [arguments, status, out] : rows) {
        const Outcome outcome = RunOstrel(directory, "search " + arguments);
        EXPECT_EQ(outcome.status, status) << arguments << outcome.errors;
        EXPECT_EQ(outcome.out, out) << arguments;
        EXPECT_EQ(outcome.errors.empty(), status < 2) << arguments;
    }
    const Outcome first = RunOstrel(directory, "search d pear -n 1");
    EXPECT_NE(first.out.find("Pear  d/pear.htm\n1 more page matches.\n"), std::string::npos) << first.out;
    const Outcome json = RunOstrel(directory, "search d apple --json");
    EXPECT_EQ(json.out, "{\"phrase\":\"apple\",\"pages\":3,\"matching\":1,\"results\":[{\"percentage\":50,"
                        "\"title\":\"\xC3\x89toile\",\"file\":\"d/old.htm\"}]}\n");
}

TEST(SearchCommand, WritesAPageOfLinks) {
    const HelpPages directory;
    EXPECT_EQ(RunOstrel(directory, "search d tree --html out.htm").status, 0);
    EXPECT_NE(directory.Read("out.htm").find("<A HREF=\"d/deep/zo%C3%AB.html\"><B>Zo\xEB</B></A>"),
              std::string::npos);
    EXPECT_EQ(RunOstrel(directory, "search d tree --html out.htm").status, 0);
    // A page that somebody else has written stays.
    const std::string before = directory.Read("d/old.htm");
    EXPECT_EQ(RunOstrel(directory, "search d tree --html d/old.htm").status, 2);
    EXPECT_EQ(RunOstrel(directory, "index d -o d/old.htm").status, 1);
    EXPECT_EQ(directory.Read("d/old.htm"), before);
}

TEST(IndexCommand, SortsTitlesAndHeadings) {
    const HelpPages directory;
    const Outcome outcome = RunOstrel(directory, "index d -o d/index.htm --title 'A & B'");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.out, "7 entries of 3 pages in d/index.htm\n");
    const std::string page = directory.Read("d/index.htm");
    std::size_t at = 0;
    for (const std::string piece :
         {"<H1>A &amp; B</H1>", "<A NAME=\"E\">E", "<A HREF=\"old.htm\">\xC9toile</A>", "<A NAME=\"P\">P",
          "<TD>Pear</TD>", "<A HREF=\"deep/zo%C3%AB.html#h\">Zo\xEB</A>", "<A HREF=\"pear.htm\">Pear</A>",
          "<A NAME=\"Z\">Z", "<TD>Zo\xEB</TD>"}) {
        at = page.find(piece, at);
        ASSERT_NE(at, std::string::npos) << piece << page;
    }
    // A second run leaves the index itself out.
    EXPECT_EQ(RunOstrel(directory, "index d -o d/index.htm --title 'A & B'").out, outcome.out);
    EXPECT_EQ(directory.Read("d/index.htm"), page);
}

} // namespace

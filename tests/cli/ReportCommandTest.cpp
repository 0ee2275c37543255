#include <fcntl.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "cli/ShownTable.h"
#include "support/RunReport.h"
#include "tablepages/PageLinks.h"

// The command as a user runs it: the built program, its streams, its exit status and what it leaves on disk.

namespace {

using ostrel::test::Outcome;
using ostrel::test::Program;
using ostrel::test::RunReport;
using ostrel::test::TemporaryDirectory;
using Table = std::vector<std::vector<std::string>>;

const std::string MainPageAlone = " --no-sort --no-records --no-record-numbers --no-csv";

TEST(ReportCommand, ShowsWhatTheFileHeld) {
    struct Row {
        std::string csv, options;
        Table shown;
    };
    for (const auto& [csv, options, shown] : std::vector<Row>{
             {"a,b\n1,2\n", "", {{"a", "b"}, {"1", "2"}}},
             {"a & b,<i>\n\"x \"\"y\"\"\",<b>&amp;</b>\n",
              "",
              {{"a & b", "<i>"}, {"x \"y\"", "<b>&amp;</b>"}}},
             {"\xEF\xBB\xBF"
              "n\xC3\xA4me;x\r\nZo\xC3\xAB;\xE4\xB8\xAD\xE2\x82\xAC\r\n",
              "",
              {{"n\xC3\xA4me", "x"}, {"Zo\xC3\xAB", "\xE4\xB8\xAD\xE2\x82\xAC"}}},
             {"n\xE4me\tx\rZo\xEB\t\x80\r", "", {{"n\xC3\xA4me", "x"}, {"Zo\xC3\xAB", "\xE2\x82\xAC"}}},
             {"a|b\n\"two\nlines\"|0.00\n", "", {{"a", "b"}, {"two\nlines", "0.00"}}},
             {"a,b\n1,2,\n", "--delimiter ';'", {{"a,b"}, {"1,2,"}}},
             {"a,b\n0.00,x\n", "--blank-zeros", {{"a", "b"}, {"", "x"}}},
             {"a,b\n1,2\n", "--no-header", {{"Column 1", "Column 2"}, {"a", "b"}, {"1", "2"}}},
             {"a,b,c\n1,2,3\n", "--hide b", {{"a", "c"}, {"1", "3"}}},
             {"1,2,a\n1,2,3\n", "--hide 1 --hide 3", {{"2"}, {"2"}}},
             {"a,b\n<B>x</B>,\xC3\xA9\n", "--html", {{"a", "b"}, {"x", "\xC3\xA9"}}},
             {"\xC3\xA9\nx\n", "--encoding windows-1252", {{"\xC3\x83\xC2\xA9"}, {"x"}}},
         }) {
        const TemporaryDirectory directory;
        directory.Write("in.csv", csv);
        const Outcome outcome = RunReport(directory, "in.csv -o out " + options + MainPageAlone);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(ShownTable(directory.Read("out/in.htm")), shown) << csv;
        EXPECT_EQ(directory.Names(), (std::set<std::string>{"in.csv", "out"}));
    }
}

// Each option changes a page as it says: a piece of it comes, or a piece that is there without it goes.
TEST(ReportCommand, EachOptionMakesItsPiece) {
    struct Row {
        std::string others, option, file, piece;
    };
    const TemporaryDirectory directory;
    directory.Write("in.csv",
                    "No,Name,Price,At,None\n1,Pear,2,1:30,\n2.1,Apple,0,0:30,\n2.2,Pear,3,1:00,\n,,,,\n");
    const auto page = [&](const std::string& options, const std::string& file) {
        std::filesystem::remove_all(directory.Path("out"));
        const Outcome outcome = RunReport(directory, "in.csv -o out " + options);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return file.empty() ? outcome.out : directory.Read("out/" + file);
    };
    for (const auto& [others, option, file, piece] : std::vector<Row>{
             {"", "--title T", "in.htm", "<TITLE>T</TITLE>"},
             {"", "--sub-title S", "in.htm", "<P>S</P>"},
             {"", "--footer F", "in.htm", "<P>F</P>"},
             {"", "--name n", "n_2_U.htm", "Pear"},
             {"", "--no-sort", "in_2_U.htm", "Pear"},
             {"", "--records", "in_Rec_Num_2.htm", "Apple"},
             {"--records", "--records=name", "in_Rec_Num_2_Name_D.htm", "Apple"},
             {"--records", "--records=value", "in_Rec_Num_2_Value_D.htm", "Apple"},
             {"--records", "--record-title Price", "in_Rec_Num_1.htm", "<B>2</B>"},
             {"--records --hide Price", "--records-all", "in_Rec_Num_1.htm", "Price"},
             {"", "--no-record-numbers", "in.htm", "R/N"},
             {"", "--no-csv", "in.csv", "Pear"},
             {"--hide Price", "--csv-all", "in.csv", "Price"},
             {"", "--quiet", "", "pages written"},
             {"", "--link Name=m.htm#", "in.htm", "<TD><A HREF=\"m.htm#.PEAR\">Pear</A></TD>"},
             {"--link Name=m.htm#", "--link-tip Name=tip", "in.htm",
              "<A HREF=\"m.htm#.PEAR\" TITLE=\"tip\">"},
             {"", "--width Name=77", "in.htm", "<TD WIDTH=\"77\">Pear"},
             {"", "--column-colour Name=red", "in.htm", "<TD BGCOLOR=\"red\">Pear"},
             {"", "--column-color Price=red", "in.htm", "<TD ALIGN=\"RIGHT\" BGCOLOR=\"red\">2"},
             {"", "--expose Name", "in_2_U.htm", "<TD><A NAME=\"Name.APPLE\">Apple"},
             {"", "--record-column No", "in.htm", "#3"},
             {"", "--total Price", "in.htm", "<TD ALIGN=\"RIGHT\" BGCOLOR=\"#EDF1F6\">5</TD>"},
             {"", "--total-time At", "in.htm", "<TD ALIGN=\"RIGHT\" BGCOLOR=\"#EDF1F6\">00:03:00</TD>"},
             {"--total Price", "--total-format 0.0", "in.htm", ">5.0<"},
             {"--total Price --total No", "--total-format Price=0.0", "in.htm", ">5.0<"},
             {"--total Price", "--break Name", "in.htm", "<B>Sub-Total: Apple</B>"},
             {"--total Price", "--sub-totals", "in_2_U.htm", "<B>Sub-Total: Pear</B>"},
             {"", "--pattern columns", "in.htm", "<TD ALIGN=\"RIGHT\" BGCOLOR=\"#F5F7FA\">2<"},
             {"", "--row-colours red,lime", "in.htm", "<TD BGCOLOR=\"red\">Pear"},
             {"", "--row-colors red,lime", "in.htm", "<TD BGCOLOR=\"lime\">Apple"},
             {"", "--header-colour red", "in.htm", "<TD ALIGN=\"CENTER\" BGCOLOR=\"red\">"},
             {"", "--background red", "in.htm", "<BODY BGCOLOR=\"red\">"},
             {"", "--link-colour red", "in.htm", "a[href] { color: red;"},
             {"", "--font Mono", "in.htm", "font: 14px/1.45 Mono;"},
             {"", "--border 7", "in.htm", "<TABLE BORDER=\"7\""},
             {"", "--plain", "in.htm", "<STYLE>"},
             {"", "--blank-zeros", "in.htm", ">0<"},
             {"", "--skip-blank-rows", "in.htm", "#4"},
             {"", "--skip-blank-columns", "in.htm", "<B>None</B>"},
             {"", "--repeat-header", "in.htm", "<A HREF=\"in_2_U.htm#bottom\""},
             {"", "--header-link Home=h.htm", "in.htm", "<A HREF=\"h.htm\">Home</A>"},
             {"", "--header-link Bottom", "in.htm", "<A HREF=\"#bottom\">Bottom</A>"},
             {"", "--set PageTableBold=True", "in.htm", "<B>Pear</B>"},
         }) {
        const bool without = page(others, file).find(piece) != std::string::npos;
        const bool with = page(others + " " + option, file).find(piece) != std::string::npos;
        EXPECT_NE(without, with) << others << " " << option << ": " << piece;
    }
}

TEST(ReportCommand, RefusesBadInputAndLeavesNothing) {
    std::string manyColumns(10'000, ','), large = "a\n" + std::string((64u << 20) + 1, 'x');
    struct Row {
        std::string csv, arguments;
        int status;
        std::string sentence;
    };
    for (const auto& [csv, arguments, status, sentence] : std::vector<Row>{
             {"", "missing.csv -o out", 1, "missing.csv can't be read: No such file or directory."},
             {"", "in.csv -o out", 1, "in.csv is empty."},
             {"", ". -o out", 1, ". can't be read: it is a directory."},
             {"", "- -o out", 1, "standard input is empty."},
             {"a,b\n", "in.csv -o out", 1, "in.csv, line 1: there is a header and no row below it."},
             {"a,b\n1\n", "in.csv -o out", 1,
              "in.csv, line 2: the row has 1 value where the header has 2 columns."},
             {"a,b\n\"1\n2\",3,4\n", "in.csv -o out", 1,
              "in.csv, line 2: the row has 3 values where the header has 2 columns."},
             {"a\n\"open\n", "in.csv -o out", 1,
              "in.csv, line 2: the quote that opens a value here is not closed."},
             {std::string("a\nb\0\n", 5), "in.csv -o out", 1,
              "in.csv, line 2: there is a NUL byte, so this is not text."},
             {std::string("\xFF\xFE"
                          "a\0",
                          4),
              "in.csv -o out", 1,
              "in.csv, line 1: the text is UTF-16; only UTF-8 and Windows-1252 are read."},
             {manyColumns, "in.csv -o out", 1, "in.csv, line 1: the row has more than 10000 values."},
             {large, "in.csv -o out", 1, "in.csv, line 2: a value is larger than 64 MiB."},
             {"a,b\n1,2\n", "in.csv -o out --hide c", 1,
              "in.csv, line 1: --hide: there is no column [c]; there is a, b."},
             {"a,a\n1,2\n", "in.csv -o out --total a", 1,
              "in.csv, line 1: --total: several columns are called [a]; give the number of one."},
             {"../a,b\n1,2\n", "in.csv -o out --set PageTableOrderUseNames=True", 1,
              "in.csv, line 1: the column name [../a] can't be part of a page's name."},
             {"a_b,a b\n1,2\n", "in.csv -o out --set PageTableOrderUseNames=True", 1,
              "in.csv, line 1: two columns would share the pages of the name [ab]."},
             {"a\n1\n", "in.csv -o ''", 2, "-o: the directory has no name."},
             {"a\n1\n", "in.csv -o in.csv", 1, "The directory in.csv can't be written: it is no directory."},
             {"a\n1\n", "in.csv -o in.csv/out", 1,
              "The directory in.csv/out can't be written: Not a directory."},
             {"a\n1\n", "in.csv -o out --query 'SELECT 1'", 1,
              "in.csv is not a SQLite database, so it takes no query."},
             {"a\n1\n", "in.csv -o out --type a=colour", 2,
              "--type a=colour: the type must be text, number, date or time."},
             {"a\n1\n", "in.csv -o out --type a", 2, "--type a: it must be COLUMN=VALUE."},
             {"a\n1\n", "in.csv -o out --delimiter ab", 2,
              "--delimiter ab: it must be one character, or comma, semicolon, tab or pipe."},
             {"a\n1\n", "in.csv -o out --name a/b", 2, "--name a/b: it may hold letters, digits, - and _."},
             {"a\n1\n", "in.csv -o out --records=all", 2, "--records=all: the variants are name and value."},
             {"a\n1\n", "in.csv -o out --set Nonsense=1", 2,
              "--set Nonsense=1: there is no such property; ostrel reference lists them."},
             {"a\n1\n", "in.csv -o out --set PageTableBorder=wide", 2,
              "--set PageTableBorder=wide: the value is not a whole number."},
             {"a\n1\n", "in.csv -o out --set 'PageTableColumnHide(101)=1'", 2,
              "--set PageTableColumnHide(101)=1: it takes an index from 1 to 100, as in "
              "PageTableColumnHide(1)=VALUE."},
             {"a\n1\n", "in.csv -o out --set PageTableBold=maybe", 2,
              "--set PageTableBold=maybe: the value is neither True nor False."},
             {"a\n1\n", "in.csv -o out --row-colours '\"x\"'", 2,
              "--row-colours \"x\": quotes, brackets and semicolons can't be part of it."},
         }) {
        const TemporaryDirectory directory;
        directory.Write("in.csv", csv);
        const Outcome outcome = RunReport(directory, arguments);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_EQ(outcome.errors, "ostrel: " + sentence + "\n");
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(directory.Names(), (std::set<std::string>{"in.csv"})) << arguments;
        EXPECT_EQ(directory.Read("in.csv"), csv);
    }
    const TemporaryDirectory directory;
    EXPECT_EQ(RunReport(directory, "in.csv").status, 2);
    EXPECT_EQ(RunReport(directory, "in.csv -o out --nonsense").status, 2);
    EXPECT_EQ(RunReport(directory, "--help").status, 0);
}

TEST(ReportCommand, MakesAFamilyWhoseLinksLead) {
    const TemporaryDirectory directory;
    std::string csv = "Name,Born,Score,At\n";
    for (int i = 1; i <= 12; ++i)
        csv += "N" + std::to_string(i * 7 % 12) + ",19" + std::to_string(60 + i) + "-01-0" +
               std::to_string(i % 9 + 1) + "," + std::to_string(i * 5 % 11) + ",0" + std::to_string(i % 9) +
               ":30\n";
    directory.Write("my list.v2.csv", csv);
    // A point in the directory's name must not become part of a page's name.
    const Outcome outcome = RunReport(
        directory, "'my list.v2.csv' -o a.b/c.d --records=name,value --record-title Name --total Score");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(directory.Names(), (std::set<std::string>{"a.b", "my list.v2.csv"}));
    const std::string pages = directory.Path("a.b/c.d");
    EXPECT_EQ(BrokenLinks(pages), std::vector<std::string>{});
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(pages))
        names.insert(entry.path().filename());
    EXPECT_EQ(names.size(), 1 + 1 + 1 + 1 + 2 * 4 + 12 * 5u); // main, down, CSV, list, sorted, records
    EXPECT_TRUE(names.count("my_list_v2_3_U.htm"));
    EXPECT_TRUE(names.count("my_list_v2_Rec_Num_12_Value_D.htm"));

    std::map<std::string, std::filesystem::file_time_type> before;
    for (const std::string& name : names) before[name] = std::filesystem::last_write_time(pages + "/" + name);
    const Outcome again = RunReport(
        directory, "'my list.v2.csv' -o a.b/c.d --records=name,value --record-title Name --total Score");
    EXPECT_EQ(again.status, 0);
    EXPECT_NE(again.out.find("0 pages written"), std::string::npos) << again.out;
    for (const auto& [name, time] : before)
        EXPECT_EQ(std::filesystem::last_write_time(pages + "/" + name), time) << name;
}

TEST(ReportCommand, SortsByWhatTheColumnsHold) {
    const TemporaryDirectory directory;
    directory.Write("in.csv", "n,d,t,s\n10,2024-03-01,9:30,b\n9,2023-12-31,10:05,B\n-1,2024-02-01,0:59,a\n");
    const auto firstColumn = [&](const std::string& options, const std::string& page, std::size_t column) {
        EXPECT_EQ(RunReport(directory, "in.csv -o out --no-record-numbers " + options).status, 0);
        std::string values;
        for (const auto& row : ShownTable(directory.Read("out/" + page))) values += row[column] + " ";
        return values;
    };
    EXPECT_EQ(firstColumn("", "in_1_U.htm", 0), "n \xE2\x96\xB2 -1 9 10 ");
    EXPECT_EQ(firstColumn("--type n=text", "in_1_U.htm", 0), "n \xE2\x96\xB2 -1 10 9 ");
    EXPECT_EQ(firstColumn("", "in_2_D.htm", 1), "d \xE2\x96\xBC 2024-03-01 2024-02-01 2023-12-31 ");
    EXPECT_EQ(firstColumn("", "in_3_U.htm", 2), "t \xE2\x96\xB2 0:59 9:30 10:05 ");
    EXPECT_EQ(firstColumn("--total n --total-format 0.0", "in.htm", 0), "n 10 9 -1 18.0 ");
    EXPECT_EQ(firstColumn("--total n", "in.htm", 0), "n 10 9 -1 18 ");
    EXPECT_EQ(RunReport(directory, "in.csv -o one --sort s").status, 0);
    EXPECT_TRUE(std::filesystem::exists(directory.Path("one/in_4_U.htm")));
    EXPECT_FALSE(std::filesystem::exists(directory.Path("one/in_1_U.htm")));
}

TEST(ReportCommand, KeepsRawValuesInTheCsvBeside) {
    const TemporaryDirectory directory;
    directory.Write("in.csv", "a&b;c\n\"x <y>\";  1\n\"\"\"q\"\"\";caf\xC3\xA9\n");
    EXPECT_EQ(RunReport(directory, "in.csv -o out --no-sort").status, 0);
    EXPECT_EQ(directory.Read("out/in.csv").substr(0, 6), "a&b,c\r");
    EXPECT_NE(directory.Read("out/in.csv").find("x <y>"), std::string::npos);
    EXPECT_NE(directory.Read("out/in.csv").find("caf\xE9"), std::string::npos);
    // Beside itself the input is left alone.
    const std::string csv = directory.Read("in.csv");
    EXPECT_EQ(RunReport(directory, "in.csv -o . --no-sort").status, 0);
    EXPECT_EQ(directory.Read("in.csv"), csv);
    directory.Write("page.htm", csv);
    EXPECT_EQ(RunReport(directory, "page.htm -o . --no-sort").status, 1);
    EXPECT_EQ(directory.Read("page.htm"), csv);
}

TEST(ReportCommand, ReadsQueriesOfADatabase) {
    const TemporaryDirectory directory;
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(directory.Path("shop.db").c_str(), &database), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(database,
                           "CREATE TABLE items(name TEXT, price REAL, added TEXT, tag BLOB);"
                           "INSERT INTO items VALUES('M\xC3\xBCll & Co', 2.5, '2024-01-02', x'00FF'),"
                           "(NULL, 10, '2024-01-03', NULL);",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    const std::string before = directory.Read("shop.db");
    const auto shown = [&](const std::string& options) {
        const Outcome outcome = RunReport(directory, "shop.db -o out " + options + MainPageAlone);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return ShownTable(directory.Read("out/shop.htm"));
    };
    const Table all{{"name", "price", "added", "tag"},
                    {"M\xC3\xBCll & Co", "2.5", "2024-01-02", "00FF"},
                    {"", "10.0", "2024-01-03", ""}};
    EXPECT_EQ(shown(""), all);
    EXPECT_EQ(shown("--query 'SELECT count(*) AS \"How many\" FROM items'"), (Table{{"How many"}, {"2"}}));
    ASSERT_EQ(sqlite3_exec(database, "CREATE TABLE other(x)", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(shown("--table ITEMS"), all);
    for (const auto& [options, sentence] : std::vector<std::pair<std::string, std::string>>{
             {"", "there are several tables; choose one with --table: items, other."},
             {"--table nothing", "there is no table [nothing]; there is items, other."},
             {"--table other", "the table has no rows."},
             {"--query ''", "there are several tables; choose one with --table: items, other."},
             {"--query 'SELEC'", "the query can't be run: near \"SELEC\": syntax error."},
             {"--query 'SELECT 1; SELECT 2'", "the query is more than one statement."},
             {"--query 'DROP TABLE items'", "the query gives no columns."},
             {"--query 'DELETE FROM items RETURNING name'",
              "the query can't be run: attempt to write a readonly database."},
         }) {
        const Outcome outcome = RunReport(directory, "shop.db -o none " + options);
        EXPECT_EQ(outcome.status, 1) << options;
        EXPECT_EQ(outcome.errors, "ostrel: shop.db: " + sentence + "\n");
    }
    sqlite3_close(database);
    EXPECT_EQ(directory.Names(), (std::set<std::string>{"out", "shop.db"}));
}

TEST(ReportCommand, NamesEveryPageThatCannotBeWritten) {
    const TemporaryDirectory directory;
    directory.Write("in.csv", "a,b\n1,2\n");
    // Nothing can take the place of a directory that is not empty, whoever runs the test.
    for (const char* taken : {"out/in_1_U.htm/x", "out/in_2_D.htm/x"})
        std::filesystem::create_directories(directory.Path(taken));
    const Outcome outcome = RunReport(directory, "in.csv -o out");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("out/in_1_U.htm can't be written: "), std::string::npos) << outcome.errors;
    EXPECT_NE(outcome.errors.find("out/in_2_D.htm can't be written: "), std::string::npos) << outcome.errors;
    EXPECT_EQ(outcome.errors.find(".."), std::string::npos) << outcome.errors;
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 2);
    EXPECT_TRUE(std::filesystem::is_regular_file(directory.Path("out/in_2_U.htm")));

    std::filesystem::create_directories(directory.Path("other/in.csv/x"));
    const Outcome csv = RunReport(directory, "in.csv -o other");
    EXPECT_EQ(csv.status, 1);
    EXPECT_EQ(csv.errors.find("ostrel: other/in.csv can't be written: "), 0U) << csv.errors;
}

/// The program with its standard error in a pipe, so that a test can send it signals while it works.
class RunningReport {
public:
    RunningReport(const TemporaryDirectory& directory, const std::string& input,
                  std::vector<std::string> options)
        : errors_(directory.Path("stderr.txt")) {
        std::vector<std::string> words{Program, "report", input, "-o", directory.Path("out")};
        words.insert(words.end(), options.begin(), options.end());
        child_ = fork();
        if (child_ != 0) return;
        const int file = open(errors_.c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
        dup2(file, STDERR_FILENO);
        dup2(file, STDOUT_FILENO);
        std::vector<char*> arguments;
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(99);
    }
    void Interrupt() const { kill(child_, SIGINT); }
    int Wait() const {
        int status = 0;
        waitpid(child_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    std::string errors_;
    pid_t child_ = 0;
};

void WaitFor(const std::function<bool()>& condition) {
    for (int i = 0; i < 6000 && !condition(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

TEST(ReportCommand, HearsCtrlCInEveryPhase) {
    {
        // While it waits for input that does not come.
        const TemporaryDirectory directory;
        ASSERT_EQ(mkfifo(directory.Path("pipe").c_str(), 0600), 0);
        const RunningReport report(directory, directory.Path("pipe"), {});
        const int writer = open(directory.Path("pipe").c_str(), O_WRONLY);
        EXPECT_EQ(write(writer, "a,b\n", 4), 4);
        WaitFor([&] {
            int waiting = 0;
            return ioctl(writer, FIONREAD, &waiting) == 0 && waiting == 0;
        });
        report.Interrupt();
        EXPECT_EQ(report.Wait(), 130);
        close(writer);
        EXPECT_EQ(directory.Read("stderr.txt"), "Interrupted by User\n");
        EXPECT_FALSE(std::filesystem::exists(directory.Path("out")));
    }
    std::string csv = "a,b,c\n";
    for (int i = 0; i < 20'000; ++i) csv += std::to_string(i * 7919 % 20'000) + ",text,2024-01-01\n";
    // While it makes the down page, the main page, the sorted pages and the pages of the records.
    for (const char* page : {"in_D.htm", "in.htm", "in_1_U.htm", "in_3_D.htm", "in_Rec_Num_1.htm"}) {
        const TemporaryDirectory directory;
        directory.Write("in.csv", csv);
        const RunningReport report(directory, directory.Path("in.csv"), {"--records"});
        WaitFor([&] { return std::filesystem::exists(directory.Path("out/" + std::string(page))); });
        report.Interrupt();
        EXPECT_EQ(report.Wait(), 130) << page;
        EXPECT_EQ(directory.Read("stderr.txt"), "Interrupted by User\n") << page;
        EXPECT_FALSE(std::filesystem::exists(directory.Path("out/in_Rec_Num_20000.htm"))) << page;
    }
}

} // namespace

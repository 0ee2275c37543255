#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/native/NativeFiles.h"
#include "support/FaultyCalls.h"
#include "support/RunReport.h"
#include "tables/PageFailures.h"
#include "tables/ReportFiles.h"

// Which files a report writes, replaces and takes away, and which it leaves alone.

namespace ostrel::test {

namespace {

const std::string Staff = "Name,Salary,City\nAnn,471147111,Bern\nBob,471147112,Oslo\n";

} // namespace

TEST(OwnFiles, HiddenColumnsAreNowhereButWhereAsked) {
    struct Row {
        const char* options;
        std::set<std::string> holding; ///< the files that hold something of the column
    };
    for (const auto& [options, holding] : std::vector<Row>{
             {"--hide Salary --records=name,value", {}},
             {"--set 'PageTableColumnHide(2)=True' --records --sub-totals --total Salary", {}},
             {"--hide Salary --records --set PageTableSeparateHeaderField=Salary --expose Salary", {}},
             {"--hide Salary --records --csv-all", {"in.csv"}},
             {"--hide Salary --records --records-all", {"in_Rec_Num_1.htm", "in_Rec_Num_2.htm"}},
         }) {
        const TemporaryDirectory directory;
        directory.Write("in.csv", Staff);
        const Outcome outcome = RunReport(directory, "in.csv -o out " + std::string(options));
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        std::set<std::string> found;
        for (const std::string& name : directory.Names("out")) {
            const std::string content = directory.Read("out/" + name);
            if (content.find("Salary") != std::string::npos || content.find("47114711") != std::string::npos)
                found.insert(name);
        }
        EXPECT_EQ(found, holding) << options;
        EXPECT_NE(directory.Read("out/in.htm").find("2 rows, 2 columns"), std::string::npos) << options;
        EXPECT_EQ(directory.Read("out/.in.ostrel").find(directory.Path()), std::string::npos);
    }
    const TemporaryDirectory directory;
    directory.Write("in.csv", Staff);
    EXPECT_EQ(
        RunReport(directory, "in.csv -o out --hide Salary --records --record-title Salary").errors,
        "ostrel: in.csv, line 1: --record-title: the column [Salary] is hidden; --records-all shows it on "
        "the pages of the records.\n");
    EXPECT_EQ(directory.Names(), std::set<std::string>{"in.csv"});
    // The input beside the pages is no CSV file to lead to.
    EXPECT_EQ(RunReport(directory, "in.csv -o . --hide Salary --no-sort").status, 0);
    EXPECT_EQ(directory.Read("in.htm").find("in.csv"), std::string::npos);
}

TEST(OwnFiles, FilesThatNoReportMadeAreKept) {
    const std::string one = " is there already and no report made it; --overwrite replaces it.\n";
    struct Row {
        const char* name;
        std::function<void(const TemporaryDirectory&)> prepare;
        std::string sentence;
    };
    const auto write = [](const char* name, const char* content) {
        return [=](const TemporaryDirectory& directory) {
            std::filesystem::create_directory(directory.Path("out"));
            directory.Write(name, content);
        };
    };
    for (
        const auto& [name, prepare, sentence] : std::vector<Row>{
            {"page", write("out/in.htm", "mine"), "out/in.htm" + one},
            {"record", write("out/in_Rec_Num_2.htm", "mine"), "out/in_Rec_Num_2.htm" + one},
            {"no list", write("out/.in.ostrel", "mine"), "out/.in.ostrel" + one},
            {"link",
             [](const TemporaryDirectory& directory) {
                 std::filesystem::create_directory(directory.Path("out"));
                 directory.Write("precious", "mine");
                 std::filesystem::create_symlink("../precious", directory.Path("out/in.htm"));
             },
             "out/in.htm" + one},
            {"changed pages",
             [](const TemporaryDirectory& directory) {
                 EXPECT_EQ(RunReport(directory, "in.csv -o out").status, 0);
                 for (const char* page : {"out/in_1_U.htm", "out/in_2_D.htm", "out/in_3_U.htm"})
                     directory.Write(page, "mine");
             },
             "out/in_1_U.htm and 2 more files are there already and no report made them; --overwrite replaces "
             "them.\n"},
        }) {
        const TemporaryDirectory directory;
        directory.Write("in.csv", Staff);
        prepare(directory);
        const auto before = directory.Names("out");
        const Outcome outcome = RunReport(directory, "in.csv -o out --records");
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_EQ(outcome.errors, "ostrel: " + sentence);
        EXPECT_EQ(directory.Names("out"), before) << name;
        if (directory.Names().count("precious")) {
            EXPECT_EQ(directory.Read("precious"), "mine");
        }
        EXPECT_EQ(RunReport(directory, "in.csv -o out --records --overwrite").status, 0) << name;
        EXPECT_NE(directory.Read("out/in.htm").find("Salary"), std::string::npos) << name;
        // What a link led to lies elsewhere.
        if (directory.Names().count("precious")) {
            EXPECT_EQ(directory.Read("precious"), "mine");
        }
    }
}

TEST(OwnFiles, OldPagesAreTakenAwayAndNothingElse) {
    const TemporaryDirectory directory;
    directory.Write("in.csv", Staff);
    EXPECT_EQ(RunReport(directory, "in.csv -o out --records").status, 0);
    directory.Write("out/in_notes.htm", "mine");
    directory.Write("out/in_3_U.htm", "mine");
    // A run that fails leaves all of it, and goes on knowing it.
    std::filesystem::remove(directory.Path("out/in_1_U.htm"));
    std::filesystem::create_directories(directory.Path("out/in_1_U.htm/x"));
    EXPECT_EQ(RunReport(directory, "in.csv -o out --sort Name").status, 1);
    EXPECT_TRUE(directory.Names("out").count("in_Rec_Num_2.htm"));
    std::filesystem::remove_all(directory.Path("out/in_1_U.htm"));

    const Outcome outcome = RunReport(directory, "in.csv -o out --sort Name --no-csv");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_NE(outcome.out.find(" 6 old files taken away"), std::string::npos) << outcome.out;
    EXPECT_EQ(directory.Names("out"),
              (std::set<std::string>{".in.ostrel", "in.htm", "in_1_D.htm", "in_1_U.htm", "in_3_U.htm",
                                     "in_D.htm", "in_notes.htm"}));
    // A run that was cut off had no time to list the sizes of its pages.
    directory.Write("out/in_9_U.htm", directory.Read("out/in.htm"));
    directory.Write("out/in_9_D.htm", "mine");
    directory.Write("out/.in.ostrel", directory.Read("out/.in.ostrel") + "- in_9_U.htm\n- in_9_D.htm\n");
    EXPECT_EQ(RunReport(directory, "in.csv -o out --sort Name --no-csv").status, 0);
    EXPECT_FALSE(directory.Names("out").count("in_9_U.htm"));
    EXPECT_EQ(directory.Read("out/in_9_D.htm"), "mine");
    // A table that a report made is the input of another; it stays.
    EXPECT_EQ(RunReport(directory, "in.csv -o out --no-sort").status, 0);
    EXPECT_EQ(RunReport(directory, "out/in.csv -o out --no-sort").status, 0);
    EXPECT_EQ(directory.Read("out/in.csv").substr(0, 4), "Name");
}

TEST(OwnFiles, AHostileListReachesNothing) {
    const TemporaryDirectory directory;
    directory.Write("in.csv", Staff);
    std::filesystem::create_directory(directory.Path("out"));
    const std::vector<std::string> mine{"precious",        "out/precious",    "out/other.htm", "out/in_a.txt",
                                        "out/in_size.htm", "out/in_word.htm", "out/inside.htm"};
    for (const std::string& name : mine) directory.Write(name, "mine");
    std::string list = "Ostrel report files 1\nInput\n";
    for (const std::string name :
         {"../precious", "in_/../../precious.htm", "precious", "other.htm", "in_a.txt", "in_\x01.htm",
          "in_\\..\\x.htm", "inside.htm", "..", ".", "", "in_", "\n"})
        list += "4 " + name + "\n";
    list +=
        "5 in_size.htm\n-4 in_word.htm\n99999999999999999999999 in_word.htm\n- in_word.htm\nin_word.htm\n";
    list += std::string(1 << 20, 'x') + "\n4 in_1_U.htm";
    directory.Write("out/.in.ostrel", list);
    directory.Write("out/in_1_U.htm", "mine");
    EXPECT_EQ(RunReport(directory, "in.csv -o out --no-sort").status, 0);
    for (const std::string& name : mine) EXPECT_EQ(directory.Read(name), "mine") << name;
    EXPECT_FALSE(directory.Names("out").count("in_1_U.htm"));
    EXPECT_EQ(tables::MainPageIn(directory.Path("out")), "in.htm");
    EXPECT_EQ(tables::MainPageIn(directory.Path()), "");
}

TEST(OwnFiles, AFullDiskEndsTheWriting) {
    const TextView page = "a page";
    const auto replace = [&](tables::ReportFiles& files, const Text& name) {
        return files.Replace(Text(tables::ReportFiles::Drive) + name, {&page, 1}, {});
    };
    // With no room for the list there is no page; with room for one page the next one ends the run.
    for (const bool forAPage : {false, true}) {
        const TemporaryDirectory directory;
        FaultyCalls calls;
        tables::ReportFiles files(std::make_unique<NativeFiles>(calls), "-", directory.Path("out"), "in.htm");
        EXPECT_TRUE(files.Plan({"in.htm", "in_1_U.htm"}).empty());
        EXPECT_EQ(files.Enter(), "");
        if (forAPage) {
            EXPECT_TRUE(replace(files, "in.htm"));
        }
        calls.roomLeft = 0;
        EXPECT_FALSE(replace(files, "in_1_U.htm"));
        EXPECT_EQ(files.End(),
                  "The disk is full: " + directory.Path(forAPage ? "out/in_1_U.htm" : "out/.in.ostrel") +
                      " can't be written, and the report is not complete.");
        const int count = calls.count;
        EXPECT_FALSE(replace(files, "in.htm"));
        EXPECT_EQ(calls.count, count);
        calls.roomLeft = 1 << 20;
        EXPECT_EQ(files.Leave(false), "");
        // The page that was written is known to the next run.
        EXPECT_TRUE(tables::ReportFiles(std::make_unique<NativeFiles>(), "-", directory.Path("out"), "in.htm")
                        .Plan({"in.htm"})
                        .empty());
    }
    tables::PageFailures failures;
    for (int i = 0; i < 1334; ++i) failures.Add("out/" + std::to_string(i) + ".htm", "Permission denied");
    EXPECT_EQ(failures.Sentences().size(), 11U);
    EXPECT_EQ(failures.Sentences().back(), "1,324 more pages can't be written.");
}

} // namespace ostrel::test

#include <gtest/gtest.h>

#include "control/Bag.h"
#include "control/ControlBench.h"
#include "control/PropertyTable.h"

namespace ostrel::test {
namespace {

/// A bag that notes the order of what it is asked.
class NotingBag final : public Bag {
public:
    std::optional<PropertyValue> Read(const Text& key) const override {
        read.push_back(key);
        return std::nullopt;
    }
    void Write(const Text& key, PropertyValue) override { written.push_back(key); }
    void Remove(const Text& key) override { written.push_back(key); }
    mutable Lines read;
    Lines written;
};

std::ptrdiff_t PlaceOf(const Lines& lines, const Text& line) {
    return std::find(lines.begin(), lines.end(), line) - lines.begin();
}

TEST(Persistence, KeysAreAskedInTheirOrder) {
    ControlBench bench;
    NotingBag bag;
    bench.web->ReadProperties(bag);
    bench.web->WriteProperties(bag);
    ASSERT_EQ(bag.read.size(), 251u);
    EXPECT_EQ(bag.read.front(), "ControlToolTip");
    EXPECT_EQ(bag.read.back(), "WorkFileRoot");
    EXPECT_EQ(PlaceOf(bag.read, "SearchMask") + 1, PlaceOf(bag.read, "SearchMatchCase"));
    EXPECT_EQ(PlaceOf(bag.written, "SearchMask"), PlaceOf(bag.written, "SearchNoRobots") + 1);

    Lines expected = bag.read;
    std::erase(expected, "EditStyleFontStyle");
    Lines written = bag.written;
    std::erase(expected, "SearchMask");
    std::erase(written, "SearchMask");
    EXPECT_EQ(written, expected);
}

TEST(Persistence, EmptyBagGivesTheDefaults) {
    ControlBench fresh, read(ControlBench::Start::Bare);
    read.web->ReadProperties(MapBag());
    MapBag freshBag, readBag;
    fresh.web->WriteProperties(freshBag);
    read.web->WriteProperties(readBag);
    EXPECT_EQ(FormatBag(freshBag), FormatBag(readBag));
    EXPECT_EQ(FormatBag(readBag), "# Properties of an OstrelWebHelp control\nSearchResultsLines = \"0\"\n");
    EXPECT_EQ(read.web->SearchRemotePrefix(), "http://www.google.com/search?q=");
    EXPECT_TRUE(read.changed.empty());
}

/// Every key gets a value that differs from its default; texts get every byte that hurts.
void SetAll(OstrelWebHelp& web) {
    Text hostile = "a=b\r\n\"c\\\" # 'd' \t";
    for (int byte = 0; byte < 256; ++byte) hostile += static_cast<char>(byte);
    Long number = -2147483647;
    for (const PropertyRow& row : AllProperties()) {
        if (!row.Persisted()) continue;
        switch (row.fallback.index()) {
        case 0:
            row.let(web, 0, Text(row.name) + hostile);
            break;
        case 1:
            row.let(web, 0, Flag(!std::get<Flag>(row.fallback)));
            break;
        case 2:
            row.let(web, 0, number++);
            break;
        default:
            row.let(web, 0, Picture{"C:\\pictures\\\"x\".ico"});
            break;
        }
    }
}

TEST(Persistence, RoundTripOverAllKeysIsTrueToTheByte) {
    ControlBench bench, other(ControlBench::Start::Bare);
    SetAll(*bench.web);
    Text huge;
    while (huge.size() < 10'000'000) huge += "A line of a page that is rather long, and its end \xE4\"\r\n";
    bench.web->HelpPart2(huge);
    FileBag bag(bench.Files(), "C:\\temp\\control.properties");
    bench.web->WriteProperties(bag);
    EXPECT_EQ(bag.Entries().size(), 250u);
    ASSERT_TRUE(bag.Save());

    FileBag loaded(bench.Files(), "C:\\temp\\control.properties");
    ASSERT_TRUE(loaded.Load());
    other.web->ReadProperties(loaded);
    for (const PropertyRow& row : AllProperties()) {
        if (!row.Persisted()) continue;
        if (row.name == "EditStyleFontStyle") {
            EXPECT_EQ(other.web->EditStyleFontStyle(), "");
            continue;
        }
        EXPECT_TRUE(row.get(*other.web, 0) == row.get(*bench.web, 0)) << row.name;
    }
    EXPECT_TRUE(other.changed.empty());
}

TEST(Persistence, EmptyResultsLinesReappearAsZero) {
    ControlBench bench;
    bench.web->SearchResultsLines("");
    MapBag bag;
    bench.web->WriteProperties(bag);
    EXPECT_FALSE(bag.Read("SearchResultsLines"));
    bench.web->ReadProperties(bag);
    EXPECT_EQ(bench.web->SearchResultsLines(), "0");
}

TEST(Persistence, OfflineIsThePanesOwn) {
    ControlBench bench;
    bench.Pane().Offline(false);
    MapBag bag;
    bench.web->WriteProperties(bag);
    ASSERT_TRUE(bag.Read("Offline"));
    bench.Pane().Offline(true);
    bench.web->ReadProperties(bag);
    EXPECT_FALSE(bench.Pane().Offline());
}

TEST(Persistence, WhatBecomesTheDefaultLeavesTheBag) {
    ControlBench bench;
    MapBag bag;
    bench.web->PageTitle("x");
    bench.web->WriteProperties(bag);
    EXPECT_TRUE(bag.Read("PageTitle"));
    bench.web->PageTitle("");
    bench.web->WriteProperties(bag);
    EXPECT_FALSE(bag.Read("PageTitle"));
    EXPECT_TRUE(bag.Read("SearchResultsLines"));
}

TEST(Persistence, ValuesConvertOrArePassedOver) {
    struct Row {
        Text key;
        PropertyValue stored;
        PropertyValue expected;
    };
    for (const auto& [key, stored, expected] : std::vector<Row>{
             {"HelpDelay", Text(" 50 "), Long{50}},
             {"HelpDelay", Text("fifty"), Long{0}},
             {"HelpDelay", Text("99999999999"), Long{0}},
             {"HelpDelay", Flag(true), Long{-1}},
             {"HelpDelay", Picture{"5"}, Long{0}},
             {"Enabled", Text("true"), Flag(true)},
             {"Enabled", Text("yes"), Flag(false)},
             {"Enabled", Long{7}, Flag(true)},
             {"ProgramName", Long{7}, Text("7")},
             {"ProgramName", Picture{"7"}, Text()},
             {"Icon", Long{7}, Picture{}},
             {"Icon", Text("a.ico"), Picture{"a.ico"}},
         }) {
        ControlBench bench(ControlBench::Start::Bare);
        MapBag bag;
        bag.Write(key, stored);
        bench.web->ReadProperties(bag);
        EXPECT_TRUE(FindProperty(key)->get(*bench.web, 0) == expected) << key;
        EXPECT_EQ(bench.web->PullType(), "I") << "reading goes on";
    }
}

TEST(FileBagText, AKeyFromTheMiddleLeavesTheOthers) {
    MapBag bag;
    for (const char* key : {"A", "B", "C", "D"}) bag.Write(key, Text(key));
    bag.Remove("B");
    bag.Write("D", Text("new"));
    bag.Write("E", Text("E"));
    EXPECT_EQ(FormatBag(bag), "# Properties of an OstrelWebHelp control\n"
                              "A = \"A\"\nC = \"C\"\nD = \"new\"\nE = \"E\"\n");
    EXPECT_EQ(bag.Read("C"), PropertyValue(Text("C")));
    EXPECT_FALSE(bag.Read("B"));
}

TEST(FileBagText, KeepsWhatIsGood) {
    MapBag bag;
    ParseBag("\xEF\xBB\xBFHelpDelay = 1\r\n"
             "# from another editor\r\n"
             "HelpDelay = 2\n"
             "HelpDelay = oops\n"
             "  PageTitle=\"a = \\\"b\\\" \\x41\\r\\n\"  \n"
             "Future_Key9 = \"kept\"\n"
             "no line\n"
             "Bad Key = 1\n"
             "ProgramName = \"unclosed\n"
             "PullName = \"bad \\q escape\"\n"
             "PullPath = \"two\" \"texts\"\n"
             "PullType = \"\\x4\"\n"
             "Icon = picture \"C:\\\\a.ico\"\n"
             "Enabled = False\n"
             "PullURL = \"cut of",
             bag);
    EXPECT_EQ(FormatBag(bag), "# Properties of an OstrelWebHelp control\n"
                              "HelpDelay = 2\n"
                              "PageTitle = \"a = \\\"b\\\" A\\r\\n\"\n"
                              "Future_Key9 = \"kept\"\n"
                              "Icon = picture \"C:\\\\a.ico\"\n"
                              "Enabled = False\n");
}

TEST(FileBagText, AFailedSaveLeavesTheOldFile) {
    MemoryFiles files;
    files.Add("C:\\temp\\p", "old");
    FileBag bag(files, "C:\\temp\\p");
    bag.Write("HelpDelay", Long{9});
    files.failAt = files.calls + 1;
    EXPECT_FALSE(bag.Save());
    EXPECT_EQ(files.files["C:\\temp\\p"], "old");
    FileBag missing(files, "C:\\temp\\none");
    EXPECT_TRUE(missing.Load());
    EXPECT_TRUE(missing.Entries().empty());
}

} // namespace
} // namespace ostrel::test

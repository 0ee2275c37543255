#include "services/CsvText.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/TestPlatform.h"

namespace ostrel::services {

using test::TestPlatform;

TEST(CsvText, Values) {
    struct Row {
        Text value, delimiter, expected;
    };
    for (const auto& [value, delimiter, expected] : std::vector<Row>{
             {"", ",", ""},
             {"plain text of some length", ",", "plain text of some length"},
             {"a\"b", ",", "\"a\"\"b\""},
             {"\"", "", "\"\"\"\""},
             {"a,b", ",", "\"a,b\""},
             {"a,b", ";", "a,b"},
             {"a,b", "", "a,b"},
             {"aXb", "x", "\"aXb\""},
             {"one AND two", " and ", "\"one AND two\""},
             {"a\rb", ",", "\"a\rb\""},
             {"ten characters and then a\nb", ",", "\"ten characters and then a\nb\""},
             {" a ", ",", " a "},
         })
        EXPECT_EQ(WriteFileCSVValue(value, delimiter), expected) << value;
}

TEST(CsvText, WritesRecordsAndStops) {
    struct Row {
        Long records, fields;
        Long stopAt; ///< the turn of the loop at which the user presses Stop
        Text error;
    };
    for (const auto& [records, fields, stopAt, error] : std::vector<Row>{
             {0, 0, 0, "No Records to write."},
             {1, 0, 0, "No Fields to write."},
             {2, 2, 0, ""},
             {49, 2, 1, ""},
             {50, 2, 1, "Write Interrupted."},
             {120, 2, 2, "Write Interrupted."},
             {30'000, 2, 0, ""},
         }) {
        TestPlatform platform;
        platform.Disk().Add("C:\\d\\a.csv", "old");
        Long turns = 0;
        std::function<void()> atTurn = [&] {
            if (++turns == stopAt) (stopAt == 2 ? platform.run.HostStop : platform.run.StopPressed) = true;
            platform.clock->Post(atTurn);
        };
        platform.clock->Post(atTurn);
        Text value;
        const auto cell = [&](Long record, Long field) {
            value = std::to_string(record) + "," + std::to_string(field) + " a value of some length";
            return TextView(value);
        };
        Text message = "before";
        LargeBuffer room;
        const Array<Text> names{"N;1"};
        EXPECT_EQ(WriteCsvFile(platform.context, "C:\\d\\a.csv", {names, records, fields, cell}, true, room,
                               message),
                  error.empty());
        EXPECT_EQ(message, error);
        const Text& written = platform.Disk().files["C:\\d\\a.csv"];
        if (!error.empty()) {
            EXPECT_EQ(written, "old");
            continue;
        }
        Text expected = "N;1,\r\n";
        for (Long record = 1; record <= records; ++record) {
            const Text first = Text(cell(record, 1));
            expected += "\"" + first + "\",\"" + Text(cell(record, 2)) + "\"\r\n";
        }
        EXPECT_EQ(written, expected);
        EXPECT_EQ(turns, records / 50);
        EXPECT_EQ(platform.Disk().files["C:\\d\\a.bak"], "old");
    }
}

TEST(CsvText, WantsAFullPath) {
    TestPlatform platform;
    platform.Disk().Add("a.csv", "N\r\n1\r\n");
    const auto cell = [](Long, Long) { return TextView("1"); };
    Text message;
    LargeBuffer room;
    EXPECT_FALSE(
        WriteCsvFile(platform.context, "a.csv", {Array<Text>{"N"}, 1, 1, cell}, false, room, message));
    EXPECT_EQ(message, "Path [a.csv] is not a full one.");
}

} // namespace ostrel::services

#include "tables/ColumnTypes.h"

#include <gtest/gtest.h>

namespace ostrel::tables {
namespace {

TEST(ColumnTypes, AreWhatEveryValueIs) {
    struct Row {
        std::vector<Text> values;
        ColumnType type;
    };
    for (const auto& [values, type] : std::vector<Row>{
             {{"1", "-2.5", "+3", ".5", "6.", "", " 7 "}, ColumnType::Number},
             {{"0", "0.5", "00.5"}, ColumnType::Text},
             {{"02134", "90210"}, ColumnType::Text}, // codes, not numbers
             {{"1", "x"}, ColumnType::Text},
             {{"1,234"}, ColumnType::Text},
             {{"1e5"}, ColumnType::Text},
             {{"-"}, ColumnType::Text},
             {{"."}, ColumnType::Text},
             {{"1.2.3"}, ColumnType::Text},
             {{"", "  "}, ColumnType::Text},
             {{"2024-02-29", "1999-12-31"}, ColumnType::Date},
             {{"2024-02-29", "2023-02-29"}, ColumnType::Text},
             {{"2024-13-01"}, ColumnType::Text},
             {{"2024/2/9", "2024-02-09 10:30"}, ColumnType::Date},
             {{"2024-02-09", "12:30"}, ColumnType::Text},
             {{"9:05", "23:59:59", "00:00"}, ColumnType::Time},
             {{"24:00"}, ColumnType::Text},
             {{"12:60:00"}, ColumnType::Text},
             {{"n/a", "1"}, ColumnType::Text},
         }) {
        ColumnTypeFinder finder;
        finder.Start(1);
        for (const Text& value : values) finder.Look(0, value);
        EXPECT_EQ(finder.Types().front(), type) << values.front();
    }
}

} // namespace
} // namespace ostrel::tables

#include "text/DateText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace ostrel {

TEST(DateText, DaysCountFromTheEndOf1899) {
    EXPECT_EQ(MakeDate(1899, 12, 30).serial, 0);
    EXPECT_EQ(MakeDate(1970, 1, 1).serial, 25569);
    EXPECT_EQ(MakeDate(2000, 3, 1).serial, 36586);
    EXPECT_EQ(MakeDate(1899, 12, 29, 6).serial, -0.75);
    EXPECT_EQ(MakeDate(2024, 2, 29, 12).serial, 45351.5);
}

TEST(DateText, EveryDayAndSecondComesBack) {
    for (int day = -700000; day < 2900000; day += 997) {
        const int second = (day + 700000) % 86400;
        const DateParts parts = PartsOf(Date{day + second / 86400.0});
        const Date again =
            MakeDate(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second);
        ASSERT_NEAR(again.serial, day + second / 86400.0, 1e-9);
    }
    EXPECT_EQ(PartsOf(Date{HUGE_VAL}).year, 1899);
}

TEST(DateText, ParseDate) {
    struct Row {
        Text text, expected; // empty for no date
    };
    for (const auto& [text, expected] : std::vector<Row>{
             {"2024-3-9", "2024-03-09 00:00:00"},
             {" 2024/03/09 ", "2024-03-09 00:00:00"},
             {"2024-03-09 5:06", "2024-03-09 05:06:00"},
             {"2024-03-09T15:06:07", "2024-03-09 15:06:07"},
             {"2024-03-09T15:06:07.6Z", "2024-03-09 15:06:08"},
             {"2024-03-09 12:30 AM", "2024-03-09 00:30:00"},
             {"2024-03-09 12:30pm", "2024-03-09 12:30:00"},
             {"25/12/2024", "2024-12-25 00:00:00"},
             {"25.12.2024 10:00", "2024-12-25 10:00:00"},
             {"5/5/2024", "2024-05-05 00:00:00"},
             {"3/4/2024", ""}, // day or month first?
             {"12/25/2024", ""},
             {"9 March 2024", "2024-03-09 00:00:00"},
             {"9-mar-2024", "2024-03-09 00:00:00"},
             {"Sep 9, 2024", "2024-09-09 00:00:00"},
             {"May 9 2024 10:20:30", "2024-05-09 10:20:30"},
             {"9 Mar 24", ""},
             {"Marsh 9, 2024", ""},
             {"2024-02-29", "2024-02-29 00:00:00"},
             {"2023-02-29", ""},
             {"1900-02-29", ""},
             {"2024-13-01", ""},
             {"2024-00-01", ""},
             {"2024-03/09", ""},
             {"2024-03-09x", ""},
             {"2024-03-09T", ""},
             {"2024-03-09 25:00", ""},
             {"24-03-09", ""},
             {"20240309", ""},
             {"10:30", ""},
             {"", ""},
         }) {
        const std::optional<Date> date = ParseDate(text);
        EXPECT_EQ(date ? FormatDate(*date, "yyyy-mm-dd hh:nn:ss") : "", expected) << text;
    }
}

TEST(DateText, ParseTime) {
    struct Row {
        Text text;
        double seconds; // -1 for no time
    };
    for (const auto& [text, seconds] : std::vector<Row>{
             {"0:00", 0},
             {"9:05", 32700},
             {"23:59:59", 86399},
             {"9:05 PM", 75900},
             {"12:00 am", 0},
             {"24:00", -1},
             {"9:60", -1},
             {"9:5", -1},
             {"13:00 PM", -1},
             {"0:10 AM", -1},
             {"9", -1},
             {"9:05:", -1},
             {"9:05 x", -1},
             {"", -1},
             {"123:00", -1},
         }) {
        const std::optional<Date> time = ParseTime(text);
        EXPECT_EQ(time ? std::round(time->serial * 86400) : -1, seconds) << text;
    }
}

TEST(DateText, FormatDate) {
    const Date date = MakeDate(2004, 7, 5, 9, 8, 6);
    struct Row {
        Text mask, expected;
    };
    for (const auto& [mask, expected] : std::vector<Row>{
             {"d/m/yy", "5/7/04"},
             {"dd mmm yyyy", "05 Jul 2004"},
             {"dddd d mmmm", "Monday 5 July"},
             {"ddd", "Mon"},
             {"h:n:s hh:nn:ss", "9:8:6 09:08:06"},
             {"yyyy-MM-DD", "2004-07-05"},
             {"(yyy) hhh", "(yyy) hhh"},
             {"", ""},
         })
        EXPECT_EQ(FormatDate(date, mask), expected) << mask;
}

} // namespace ostrel

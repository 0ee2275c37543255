#include "services/TimeText.h"

#include <gtest/gtest.h>

#include <vector>

#include "services/CountryCode.h"

namespace ostrel::services {

TEST(TimeText, Spells) {
    struct Row {
        Long count;
        Text two, three;
    };
    for (const auto& [count, two, three] : std::vector<Row>{
             {0, "00:00", ""},
             {-5, "00:00", ""},
             {59, "00:59", "00:00:59"},
             {3723, "62:03", "01:02:03"},
             {360000, "6000:00", "100:00:00"},
         }) {
        EXPECT_EQ(MinutesSeconds(count), two);
        EXPECT_EQ(HoursMinutes(count), two);
        EXPECT_EQ(HoursMinutesSeconds(count), three);
    }
}

TEST(TimeText, IsTime) {
    struct Row {
        Text text, delimiter;
        bool expected;
    };
    for (const auto& [text, delimiter, expected] : std::vector<Row>{
             {"1:30", ":", true},
             {" 12:00:59 ", ":", true},
             {"99:00", ":", true},
             {"1:60", ":", false},
             {"1:00:60", ":", false},
             {"1", ":", false},
             {"1:", ":", false},
             {":30", ":", false},
             {"-1:30", ":", false},
             {"1:+3", ":", false},
             {"1:2:3:4", ":", false},
             {"1.30", ".", true},
             {"1 h 30", " H ", true},
             {"1:30", "", false},
             {"", ":", false},
             {"a:b", ":", false},
         })
        EXPECT_EQ(IsTime(text, delimiter), expected) << text;
}

TEST(TimeText, CountryCodeOfLocales) {
    struct Row {
        Text locale;
        Long expected;
    };
    for (const auto& [locale, expected] : std::vector<Row>{
             {"en_GB.UTF-8", 44},
             {"de_AT@euro", 43},
             {"en_us", 1},
             {"fr_SN", 221},
             {"ky_kg", 996},
             {"en_ZW", 263},
             {"ca_AD", 376},
             {"C.UTF-8", 1},
             {"xx_QQ", 1},
             {"", 1},
         })
        EXPECT_EQ(CountryCodeOf(locale), expected) << locale;
}

} // namespace ostrel::services

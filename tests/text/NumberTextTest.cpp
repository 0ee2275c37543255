#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace ostrel {

TEST(NumberText, ReadsNumbers) {
    struct Row {
        Text text;
        Double leading;
        std::optional<Double> whole;
    };
    for (const auto& [text, leading, whole] : std::vector<Row>{
             {"", 0, {}},     {"  12 ", 12, 12}, {"-1.5", -1.5, -1.5}, {"+.5", 0.5, 0.5}, {"5.", 5, 5},
             {"1e5", 1, 1e5}, {"1E-2", 1, 0.01}, {"1e", 1, {}},        {"1,000", 1, {}},  {"12abc", 12, {}},
             {"-", 0, {}},    {".", 0, {}},      {"--1", 0, {}},       {"- 1", 0, {}},    {"inf", 0, {}},
             {"nan", 0, {}},  {"0x10", 0, {}},   {"1.2.3", 1.2, {}},   {"007", 7, 7},     {"1e999", 1, {}},
         }) {
        EXPECT_EQ(LeadingNumber(text), leading) << text;
        EXPECT_EQ(ToDouble(text), whole) << text;
    }
    EXPECT_FALSE(std::signbit(LeadingNumber("-0")));
    EXPECT_EQ(LeadingNumber(Text(400, '9')), 0);
}

TEST(NumberText, WholeNumbersAreHalfToEvenAndInRange) {
    struct Row {
        Text text;
        std::optional<Long> expected;
    };
    for (const auto& [text, expected] : std::vector<Row>{
             {"0.5", 0},
             {"1.5", 2},
             {"2.5", 2},
             {"-2.5", -2},
             {"2147483647", 2147483647},
             {"2147483647.5", {}},
             {"-2147483648", -2147483647 - 1},
             {"1e3", 1000},
             {"2147483647.4", 2147483647},
             {"x", {}},
         })
        EXPECT_EQ(ToLong(text), expected) << text;
    EXPECT_EQ(ToLong(std::nan("")), std::nullopt);
    EXPECT_EQ(ToLong(HUGE_VAL), std::nullopt);
}

TEST(NumberText, Flags) {
    struct Row {
        Text text;
        std::optional<bool> expected;
    };
    for (const auto& [text, expected] : std::vector<Row>{
             {"TRUE", true},
             {" false ", false},
             {"0", false},
             {"-1", true},
             {"0.0", false},
             {"yes", {}},
             {"", {}},
         })
        EXPECT_EQ(ToFlag(text), expected) << text;
}

TEST(NumberText, WritesNumbers) {
    struct Row {
        Double value;
        Text expected;
    };
    for (const auto& [value, expected] : std::vector<Row>{
             {0, "0"},
             {-0.0, "0"},
             {0.1 + 0.2, "0.3"},
             {1.0 / 3, "0.333333333333333"},
             {-1234.5, "-1234.5"},
             {123456789012345.0, "123456789012345"},
             {1e15, "1E+15"},
             {1.5e300, "1.5E+300"},
             {0.000001, "0.000001"},
             {1e-20, "1E-20"},
         })
        EXPECT_EQ(FromDouble(value), expected);
    EXPECT_EQ(FromLong(-2147483647 - 1), "-2147483648");
}

TEST(NumberText, FormatNumber) {
    struct Row {
        Double value;
        Text mask, expected;
    };
    for (const auto& [value, mask, expected] : std::vector<Row>{
             {0.5, "#.00", ".50"},
             {0, "#.00", ".00"},
             {-0.001, "#.00", ".00"},
             {-0.005, "#.00", "-.01"},
             {2.675, "0.00", "2.68"},
             {1.005, "0.00", "1.01"},
             {999.995, "#.00", "1000.00"},
             {9.5, "#", "10"},
             {0.5, "#", "1"},
             {0.4, "#", ""},
             {0, "#", ""},
             {0, "0", "0"},
             {3, "#.", "3."},
             {3, "#.##", "3."},
             {3.1, "#.##", "3.1"},
             {3.05, "#.0#", "3.05"},
             {3, "#.0#", "3.0"},
             {12.5, ".00", "12.50"},
             {7, "000", "007"},
             {1234, "00", "1234"},
             {1e20, "0", "100000000000000000000"},
             {1e-7, "0.00", "0.00"},
             {0.1 + 0.2, "0.000000000000000000", "0.300000000000000000"},
             {1234567.891, "#,##0.00", "1,234,567.89"},
             {5, "0,000", "0,005"},
             {0.256, "0.0%", "25.6%"},
             {5, "$0.00 \"net\"", "$5.00 net"},
             {-5, "$0", "-$5"},
             {-5, "0;(0)", "(5)"},
             {0, "0;(0);\\-", "-"},
             {5, "", "5"},
         })
        EXPECT_EQ(FormatNumber(value, mask), expected) << value << " " << mask;
}

} // namespace ostrel

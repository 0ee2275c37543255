#include "text/CodePage.h"

#include <gtest/gtest.h>

#include <vector>

namespace ostrel {

TEST(CodePage, CompareTextFollowsTheUpperCasedBytes) {
    struct Row {
        Text left, right;
        int sign;
    };
    for (const auto& [left, right, sign] : std::vector<Row>{
             {"", "", 0},
             {"", "a", -1},
             {"abcdefghijkl", "ABCDEFGHIJKL", 0},
             {"abcdefghX", "abcdefghx", 0},
             {"abcdefgh", "abcdefghi", -1},
             {"a_", "aZ", 1}, // "_" stands behind "Z"
             {"a_", "az", 1},
             {"\x9A\x9C\x9E\xFF\xE0\xFE", "\x8A\x8C\x8E\x9F\xC0\xDE", 0},
             {"\xF7", "\xD7", 1},
             {"\xDF", "SS", 1},
         }) {
        const int result = CompareText(left, right);
        EXPECT_EQ((result > 0) - (result < 0), sign) << left << " " << right;
        EXPECT_EQ(EqualText(left, right), sign == 0) << left << " " << right;
    }
}

TEST(CodePage, Trims) {
    struct Row {
        Text text, blanks, lines;
    };
    for (const auto& [text, blanks, lines] : std::vector<Row>{
             {"", "", ""},
             {"  ", "", ""},
             {" a b ", "a b", "a b"},
             {"\r\n a \n", "\r\n a \n", "a"},
             {" \r\n \n\r", "\r\n \n\r", ""},
             {"\t a\xA0 ", "\t a\xA0", "\t a\xA0"},
         }) {
        EXPECT_EQ(TrimBlanks(text), blanks);
        EXPECT_EQ(TrimCrLf(text), lines);
    }
}

TEST(CodePage, Utf8) {
    Text all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);

    struct Row {
        Text utf8;
        std::optional<Text> text;
        char32_t offender;
    };
    for (const auto& [utf8, text, offender] : std::vector<Row>{
             {"\xE2\x82\xAC", "\x80", 0},
             {"\xC2\x81", "\x81", 0},
             {"\xE4\xB8\xAD", std::nullopt, 0x4E2D},
             {"\xC2\x80", std::nullopt, 0x80}, // a control that the euro sign's byte does not stand for
             {"a\xC3", std::nullopt, 0xFFFD},
             {"\xC0\x80", std::nullopt, 0xFFFD},
             {"\xED\xA0\x80", std::nullopt, 0xFFFD},
             {"\xF4\x90\x80\x80", std::nullopt, 0xFFFD},
         }) {
        char32_t found = 0;
        EXPECT_EQ(FromUtf8(utf8, &found), text) << utf8;
        EXPECT_EQ(found, offender) << utf8;
    }
}

} // namespace ostrel

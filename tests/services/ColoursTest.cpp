#include "services/Colours.h"

#include <gtest/gtest.h>

#include <vector>

namespace ostrel::services {

TEST(Colours, FromNumbers) {
    struct Row {
        Long actual;
        Text hex, name;
    };
    for (const auto& [actual, hex, name] : std::vector<Row>{
             {0, "#000000", "black"},
             {255, "#ff0000", "red"},
             {16711680, "#0000ff", "blue"},
             {8421504, "#808080", "gray"},
             {1, "#010000", "#010000"},
             {0xABCDEF, "#efcdab", "#EFCDAB"},
         }) {
        EXPECT_EQ(ColourActualToHex(actual), hex);
        EXPECT_EQ(ColourActualToName(actual), name);
        EXPECT_EQ(ColourHexToActual(hex), actual);
    }
    for (const Long beyond : {-1, 0x1000000, INT32_MIN, INT32_MAX})
        EXPECT_EQ(ColourActualToHex(beyond).size(), 7u) << beyond;
}

TEST(Colours, FromTexts) {
    struct Row {
        Text text, nameOfHex, hexOfName;
        Long actualOfHex, actualOfName;
    };
    for (const auto& [text, nameOfHex, hexOfName, actualOfHex, actualOfName] : std::vector<Row>{
             {" #Ff0000 ", "red", "", 255, 255},
             {"#008000", "green", "", 32768, 32768},
             {"#ff00", "#FF00", "", -1, -1},
             {"ff00000", "FF00000", "", -1, -1},
             {"#ff00g0", "#FF00G0", "", -1, -1},
             {" Grey ", "GREY", "#808080", -1, 8421504},
             {"MAGENTA", "MAGENTA", "#FF00FF", -1, 16711935},
             {"cyan", "CYAN", "#00FFFF", -1, 16776960},
             {"nonsense", "NONSENSE", "", -1, -1},
             {"", "", "", -1, -1},
         }) {
        EXPECT_EQ(ColourHexToName(text), nameOfHex);
        EXPECT_EQ(ColourNameToHex(text), hexOfName) << text;
        EXPECT_EQ(ColourHexToActual(text), actualOfHex) << text;
        EXPECT_EQ(ColourNameToActual(text), actualOfName) << text;
    }
}

} // namespace ostrel::services

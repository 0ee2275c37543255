#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ostrel::test {

/// Expects the text to equal the golden file of that name, byte by byte. With OSTREL_UPDATE_GOLDEN in the
/// environment it writes the file instead.
inline void ExpectGolden(const std::string& name, std::string_view text) {
    const std::string path = std::string(OSTREL_TEST_DIR) + "/golden/" + name;
    if (std::getenv("OSTREL_UPDATE_GOLDEN")) {
        std::ofstream(path, std::ios::binary) << text;
        return;
    }
    std::ifstream file(path, std::ios::binary);
    ASSERT_TRUE(file) << path << " is missing";
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(text == expected) << "differs from " << path << ":\n" << text;
}

} // namespace ostrel::test

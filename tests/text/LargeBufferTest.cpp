#include "text/LargeBuffer.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <string>

using namespace ostrel;

TEST(LargeBuffer, KeepsItsContentOverEveryGrowth) {
    LargeBuffer buffer;
    std::string expected;
    buffer.Append("first");
    expected += "first";
    for (const std::size_t room : {std::size_t{3} << 20, std::size_t{5} << 30, std::size_t{12} << 30}) {
        buffer.Reserve(room);
        const std::string piece(3'000'001, static_cast<char>('a' + room % 23));
        buffer.Append(piece);
        expected += piece;
        char* const written = buffer.Grow(1000);
        written[0] = 'x';
        written[1] = 'y';
        buffer.Commit(2);
        buffer.Append('z');
        expected += "xyz";
        ASSERT_TRUE(buffer.View() == expected);
    }
    LargeBuffer moved(std::move(buffer));
    EXPECT_TRUE(moved.View() == expected);
    moved.Truncate(5);
    EXPECT_EQ(moved.View(), "first");
    const char* const place = moved.Data();
    moved.Clear();
    moved.Append("second");
    EXPECT_EQ(moved.View(), "second");
    EXPECT_EQ(moved.Data(), place);
    moved.Release();
    EXPECT_TRUE(moved.Empty());
    moved.Append("third");
    EXPECT_EQ(moved.View(), "third");
}

TEST(LargeBuffer, ThrowsWithoutMemoryAndKeepsItsContent) {
    LargeBuffer buffer;
    buffer.Append("kept");
    for (const std::size_t size : {std::numeric_limits<std::size_t>::max(), std::size_t{1} << 60})
        EXPECT_THROW(buffer.Grow(size), std::bad_alloc);
    EXPECT_EQ(buffer.View(), "kept");
}

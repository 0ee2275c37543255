#include "text/LargeBuffer.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <string>
#include <vector>

#if defined(__linux__)
#include <fstream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

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

#if defined(__linux__)

namespace {

/// Bytes of the process that count against its limit of data.
rlim_t DataInUse() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmData:")) return std::stoull(line.substr(7)) * 1024;
    return 0;
}

/// 0 where small buffers live with a limit of 256 MB, and a large one throws and lives on.
int LiveWithLimit() {
    rlimit limit{};
    ::getrlimit(RLIMIT_DATA, &limit);
    limit.rlim_cur = DataInUse() + (rlim_t{256} << 20);
    if (::setrlimit(RLIMIT_DATA, &limit) != 0) return 1;
    std::vector<LargeBuffer> buffers(20);
    for (LargeBuffer& buffer : buffers) buffer.Append("small");
    try {
        buffers[0].Reserve(std::size_t{1} << 30);
        return 2;
    } catch (const std::bad_alloc&) {
    }
    buffers[0].Append(std::string(20 << 20, 'x'));
    return buffers[0].View().starts_with("smallxxx") && buffers[19].View() == "small" ? 0 : 3;
}

} // namespace

TEST(LargeBuffer, WhatIsKeptForGrowthCountsAgainstNoLimit) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) ::_exit(LiveWithLimit());
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

#endif

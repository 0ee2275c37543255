#include "desk/YieldingCalls.h"

#include <algorithm>
#include <cerrno>

namespace ostrel::desk {

namespace {

/// Takes a few milliseconds even where the disk is slow to take it.
constexpr std::size_t PieceSize = std::size_t{1} << 20;

} // namespace

ssize_t YieldingCalls::Read(int file, char* buffer, std::size_t size) {
    if (work_.GiveWay()) {
        errno = ECANCELED;
        return -1;
    }
    return SystemCalls::Read(file, buffer, size);
}

ssize_t YieldingCalls::Write(int file, const iovec* pieces, int count) {
    if (work_.GiveWay()) {
        errno = ECANCELED;
        return -1;
    }
    // The caller continues behind what was written.
    if (pieces[0].iov_len >= PieceSize) {
        const iovec piece{pieces[0].iov_base, PieceSize};
        return SystemCalls::Write(file, &piece, 1);
    }
    int taken = 0;
    for (std::size_t size = 0; taken < count && size + pieces[taken].iov_len <= PieceSize; ++taken)
        size += pieces[taken].iov_len;
    return SystemCalls::Write(file, pieces, std::max(taken, 1));
}

int YieldingCalls::Unlink(const char* path) {
    // What has been begun is cleaned up after a stop, too.
    work_.GiveWay();
    return SystemCalls::Unlink(path);
}

} // namespace ostrel::desk

#pragma once

#include "desk/Work.h"
#include "platform/native/SystemCalls.h"

namespace ostrel::desk {

/// The system's calls for files that may be large: they are read and written in pieces, between which the
/// windows answer, and what is being read or written when the user stops the work is given up.
class YieldingCalls final : public SystemCalls {
public:
    explicit YieldingCalls(Work& work) : work_(work) {}

    ssize_t Read(int file, char* buffer, std::size_t size) override;
    ssize_t Write(int file, const iovec* pieces, int count) override;
    int Unlink(const char* path) override;

private:
    Work& work_;
};

} // namespace ostrel::desk

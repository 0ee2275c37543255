#pragma once

#include <cerrno>
#include <cstdint>
#include <limits>

#include <fcntl.h>

#include "platform/native/SystemCalls.h"

namespace ostrel::test {

/// The system with one fault: the n-th call fails, every close or access does, writes are short, or the disk
/// is full.
class FaultyCalls : public SystemCalls {
public:
    void FailAt(int call, int error) {
        failing_ = call;
        error_ = error;
    }

    int count = 0; ///< calls so far
    std::size_t largestWrite = std::numeric_limits<std::size_t>::max();
    std::size_t roomLeft = std::numeric_limits<std::size_t>::max();
    int closeError = 0;  ///< of every close, or 0
    int accessError = 0; ///< of every test of access, or 0
    bool unnamedFiles = true;
    bool hardLinks = true;

    int Open(const char* path, int flags, mode_t mode) override {
        if ((flags & O_TMPFILE) == O_TMPFILE && !unnamedFiles) return Refuse(EOPNOTSUPP);
        return Fails() ? -1 : SystemCalls::Open(path, flags, mode);
    }
    ssize_t Read(int file, char* buffer, std::size_t size) override {
        return Fails() ? -1 : SystemCalls::Read(file, buffer, size);
    }
    ssize_t Write(int file, const iovec* pieces, int pieceCount) override {
        if (Fails()) return -1;
        if (roomLeft == 0) return Refuse(ENOSPC);
        const std::size_t limit = std::min(largestWrite, roomLeft);
        if (pieces[0].iov_len < limit && pieceCount == 1)
            return Written(SystemCalls::Write(file, pieces, pieceCount));
        const iovec part{pieces[0].iov_base, std::min(pieces[0].iov_len, limit)};
        return Written(SystemCalls::Write(file, &part, 1));
    }
    int Close(int file) override {
        // What fails to close is closed nevertheless.
        const bool fails = Fails() || closeError;
        const int error = closeError ? closeError : errno;
        const int result = SystemCalls::Close(file);
        if (!fails) return result;
        errno = error;
        return -1;
    }
    int TryLock(int file) override { return Fails() ? -1 : SystemCalls::TryLock(file); }
    int Status(const char* path, struct stat& status) override {
        return Fails() ? -1 : SystemCalls::Status(path, status);
    }
    int LinkStatus(const char* path, struct stat& status) override {
        return Fails() ? -1 : SystemCalls::LinkStatus(path, status);
    }
    int FileStatus(int file, struct stat& status) override {
        return Fails() ? -1 : SystemCalls::FileStatus(file, status);
    }
    int Access(const char* path, int wish) override {
        if (accessError) return Refuse(accessError);
        return Fails() ? -1 : SystemCalls::Access(path, wish);
    }
    ssize_t ReadLink(const char* path, char* buffer, std::size_t size) override {
        return Fails() ? -1 : SystemCalls::ReadLink(path, buffer, size);
    }
    int SetMode(int file, mode_t mode) override { return Fails() ? -1 : SystemCalls::SetMode(file, mode); }
    int SetOwner(int file, uid_t user, gid_t group) override {
        return Fails() ? -1 : SystemCalls::SetOwner(file, user, group);
    }
    int NameOpenFile(int file, const char* path) override {
        return Fails() ? -1 : SystemCalls::NameOpenFile(file, path);
    }
    int Link(const char* from, const char* to) override {
        if (!hardLinks) return Refuse(EPERM);
        return Fails() ? -1 : SystemCalls::Link(from, to);
    }
    int Rename(const char* from, const char* to) override {
        return Fails() ? -1 : SystemCalls::Rename(from, to);
    }
    int RenameToFree(const char* from, const char* to) override {
        return Fails() ? -1 : SystemCalls::RenameToFree(from, to);
    }
    int Unlink(const char* path) override { return Fails() ? -1 : SystemCalls::Unlink(path); }
    int MakeDirectory(const char* path, mode_t mode) override {
        return Fails() ? -1 : SystemCalls::MakeDirectory(path, mode);
    }

private:
    bool Fails() {
        if (++count != failing_) return false;
        errno = error_;
        return true;
    }
    int Refuse(int error) {
        errno = error;
        return -1;
    }
    ssize_t Written(ssize_t written) {
        if (written > 0 && roomLeft != std::numeric_limits<std::size_t>::max())
            roomLeft -= static_cast<std::size_t>(written);
        return written;
    }

    int failing_ = 0;
    int error_ = 0;
};

} // namespace ostrel::test

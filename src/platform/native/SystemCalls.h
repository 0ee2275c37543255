#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>

namespace ostrel {

/// A name in a directory.
struct DirectoryEntry {
    enum class Kind { Plain, Other, Unknown };
    std::string name;
    Kind kind;
};

/// All system calls of the native roles, in one place, so that a test can make any of them fail.
/// Like the system's own they return -1 and set `errno`; interrupted calls are not repeated here.
class SystemCalls {
public:
    virtual ~SystemCalls() = default;
    /// The system itself.
    static SystemCalls& Real();

    virtual int Open(const char* path, int flags, mode_t mode = 0);
    virtual ssize_t Read(int file, char* buffer, std::size_t size);
    virtual ssize_t Write(int file, const iovec* pieces, int count);
    virtual int Close(int file);
    /// An advisory lock on an open file, which ends with its closing.
    virtual int TryLock(int file);

    virtual int Status(const char* path, struct stat& status);
    /// The same, of a symbolic link itself.
    virtual int LinkStatus(const char* path, struct stat& status);
    virtual int FileStatus(int file, struct stat& status);
    /// `wish` as for the system's own call: R_OK and the like, for the effective user.
    virtual int Access(const char* path, int wish);
    virtual ssize_t ReadLink(const char* path, char* buffer, std::size_t size);
    /// Appends all names but "." and "..".
    virtual int Names(const char* directory, std::vector<DirectoryEntry>& entries);

    virtual int SetMode(int file, mode_t mode);
    virtual int SetModeOf(const char* path, mode_t mode);
    virtual int SetOwner(int file, uid_t user, gid_t group);
    /// Gives a file that was opened without a name its first one, which must be free.
    virtual int NameOpenFile(int file, const char* path);
    virtual int Link(const char* from, const char* to);
    virtual int Rename(const char* from, const char* to);
    /// Renames to a name that must be free.
    virtual int RenameToFree(const char* from, const char* to);
    virtual int Unlink(const char* path);
    virtual int MakeDirectory(const char* path, mode_t mode);
};

/// Closes a file at the end of its scope, unless `Close` did so before.
class OpenFile {
public:
    OpenFile(SystemCalls& calls, int file) : calls_(calls), file_(file) {}
    ~OpenFile() { Close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    explicit operator bool() const { return file_ >= 0; }
    int Number() const { return file_; }
    /// Leaves the closing to the caller.
    int Take() { return std::exchange(file_, -1); }
    int Close() { return file_ < 0 ? 0 : calls_.Close(Take()); }

private:
    SystemCalls& calls_;
    int file_;
};

} // namespace ostrel

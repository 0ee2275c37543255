#include "platform/native/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ostrel {

SystemCalls& SystemCalls::Real() {
    static SystemCalls real;
    return real;
}

int SystemCalls::Open(const char* path, int flags, mode_t mode) {
    return ::open(path, flags | O_CLOEXEC, mode);
}

ssize_t SystemCalls::Read(int file, char* buffer, std::size_t size) { return ::read(file, buffer, size); }

ssize_t SystemCalls::Write(int file, const iovec* pieces, int count) { return ::writev(file, pieces, count); }

int SystemCalls::Close(int file) { return ::close(file); }

int SystemCalls::TryLock(int file) { return ::flock(file, LOCK_EX | LOCK_NB); }

int SystemCalls::Status(const char* path, struct stat& status) { return ::stat(path, &status); }

int SystemCalls::LinkStatus(const char* path, struct stat& status) { return ::lstat(path, &status); }

int SystemCalls::FileStatus(int file, struct stat& status) { return ::fstat(file, &status); }

int SystemCalls::Access(const char* path, int wish) { return ::faccessat(AT_FDCWD, path, wish, AT_EACCESS); }

ssize_t SystemCalls::ReadLink(const char* path, char* buffer, std::size_t size) {
    return ::readlink(path, buffer, size);
}

int SystemCalls::Names(const char* directory, std::vector<DirectoryEntry>& entries) {
    DIR* const stream = ::opendir(directory);
    if (!stream) return -1;
    errno = 0;
    while (const dirent* entry = ::readdir(stream)) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..") continue;
        const auto kind = entry->d_type == DT_REG ? DirectoryEntry::Kind::Plain
                          : entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN
                              ? DirectoryEntry::Kind::Unknown
                              : DirectoryEntry::Kind::Other;
        entries.push_back({std::string(name), kind});
        errno = 0;
    }
    const int fault = errno;
    ::closedir(stream);
    errno = fault;
    return fault == 0 ? 0 : -1;
}

int SystemCalls::SetMode(int file, mode_t mode) { return ::fchmod(file, mode); }

int SystemCalls::SetModeOf(const char* path, mode_t mode) { return ::chmod(path, mode); }

int SystemCalls::SetOwner(int file, uid_t user, gid_t group) { return ::fchown(file, user, group); }

int SystemCalls::NameOpenFile(int file, const char* path) {
    // Older systems allow this only to privileged users.
    if (::linkat(file, "", AT_FDCWD, path, AT_EMPTY_PATH) == 0) return 0;
    if (errno != ENOENT && errno != EPERM) return -1;
    char open[32];
    std::snprintf(open, sizeof open, "/proc/self/fd/%d", file);
    return ::linkat(AT_FDCWD, open, AT_FDCWD, path, AT_SYMLINK_FOLLOW);
}

int SystemCalls::Link(const char* from, const char* to) { return ::link(from, to); }

int SystemCalls::Rename(const char* from, const char* to) { return ::rename(from, to); }

int SystemCalls::RenameToFree(const char* from, const char* to) {
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return -1;
    // The file system cannot do it in one step.
    struct stat status;
    if (::lstat(to, &status) == 0) {
        errno = EEXIST;
        return -1;
    }
    return ::rename(from, to);
}

int SystemCalls::Unlink(const char* path) { return ::unlink(path); }

int SystemCalls::MakeDirectory(const char* path, mode_t mode) { return ::mkdir(path, mode); }

} // namespace ostrel

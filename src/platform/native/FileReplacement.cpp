#include "platform/native/FileReplacement.h"

#include <array>
#include <cerrno>
#include <climits>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "platform/native/SystemErrors.h"
#include "platform/native/TemporaryFile.h"

namespace ostrel {

namespace {

constexpr int MaximumLinks = 40;
constexpr std::size_t CopyPiece = std::size_t{256} << 10;

/// Moves `path` on to what it leads to. `status` is that of the file there, nothing where the name is free.
int FollowLinks(SystemCalls& calls, std::string& path, std::optional<struct stat>& status) {
    for (int i = 0; i < MaximumLinks; ++i) {
        struct stat found;
        if (calls.LinkStatus(path.c_str(), found) != 0) return errno == ENOENT ? 0 : errno;
        if (!S_ISLNK(found.st_mode)) {
            status = found;
            return 0;
        }
        std::array<char, PATH_MAX> link;
        const ssize_t length = calls.ReadLink(path.c_str(), link.data(), link.size());
        if (length < 0) return errno;
        const std::string_view leadsTo(link.data(), static_cast<std::size_t>(length));
        path = leadsTo.starts_with('/') ? std::string(leadsTo)
                                        : DirectoryOfSystemPath(path).append("/").append(leadsTo);
    }
    return ELOOP;
}

int CopyInto(SystemCalls& calls, const std::string& from, TemporaryFile& to) {
    OpenFile source(calls, calls.Open(from.c_str(), O_RDONLY));
    if (!source) return errno;
    std::vector<char> buffer(CopyPiece);
    for (;;) {
        const ssize_t count = calls.Read(source.Number(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) return 0;
        const TextView piece(buffer.data(), static_cast<std::size_t>(count));
        if (const int error = to.Write({&piece, 1})) return error;
    }
}

/// The file has both names for a moment, so that its own is never missing.
int KeepBackup(SystemCalls& calls, const std::string& path, const struct stat& status,
               const std::string& backup) {
    TemporaryFile copy(calls, backup);
    if (copy.Adopt(path) == 0) return copy.PlaceInstead();
    // Links are not to be had everywhere, nor from one file system to another.
    int error = copy.Open(TemporaryFile::Kind::Named);
    if (!error) error = copy.Resemble(status);
    if (!error) error = CopyInto(calls, path, copy);
    return error ? error : copy.PlaceInstead();
}

/// A device has nothing that could be kept whole.
int WriteStraight(SystemCalls& calls, const std::string& path, std::span<const TextView> pieces) {
    OpenFile device(calls, calls.Open(path.c_str(), O_WRONLY | O_NOCTTY));
    if (!device) return errno;
    if (const int error = WriteAll(calls, device.Number(), pieces)) return error;
    return device.Close() == 0 ? 0 : errno;
}

/// One attempt; `again` tells whether another one with a named temporary file may go better, `ofBackup`
/// whether it was the backup that failed.
int TryToReplace(SystemCalls& calls, std::string path, std::span<const TextView> pieces,
                 const std::string& backup, TemporaryFile::Kind kind, bool& again, bool& ofBackup) {
    again = ofBackup = false;
    std::optional<struct stat> old;
    if (const int error = FollowLinks(calls, path, old)) return error;
    if (old) {
        if (S_ISDIR(old->st_mode)) return EISDIR;
        if (S_ISCHR(old->st_mode)) return WriteStraight(calls, path, pieces);
        if (!S_ISREG(old->st_mode)) return EOPNOTSUPP;
        // A new name in the directory would pass over the protection of the file.
        if (calls.Access(path.c_str(), W_OK) != 0) return errno;
    }
    TemporaryFile file(calls, path);
    int error = file.Open(kind);
    if (!error && old) error = file.Resemble(*old);
    if (!error) error = file.Write(pieces);
    if (!error && old && !backup.empty()) {
        error = KeepBackup(calls, path, *old, backup);
        ofBackup = error != 0;
    }
    if (!error) error = old ? file.PlaceInstead() : file.PlaceNew();
    again = file.WorthAnotherAttempt();
    return error;
}

} // namespace

FileResult ReplaceFile(SystemCalls& calls, const std::string& path, std::span<const TextView> pieces,
                       const std::string& backup) {
    bool again = true, ofBackup = false;
    int error = 0;
    for (const auto kind :
         {TemporaryFile::Kind::Unnamed, TemporaryFile::Kind::Named, TemporaryFile::Kind::Named})
        if (again) error = TryToReplace(calls, path, pieces, backup, kind, again, ofBackup);
    if (!error) return {};
    FileResult result = PathFailure(calls, path, error);
    result.ofBackup = ofBackup;
    return result;
}

FileResult PathFailure(SystemCalls& calls, const std::string& path, int error) {
    constexpr Long pathNotFound = 76;
    struct stat directory;
    if (error == ENOENT && calls.Status(DirectoryOfSystemPath(path).c_str(), directory) != 0)
        return Failure(error, pathNotFound);
    return Failure(error);
}

} // namespace ostrel

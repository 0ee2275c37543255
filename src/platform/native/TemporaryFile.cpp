#include "platform/native/TemporaryFile.h"

#include <array>
#include <atomic>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace ostrel {

namespace {

constexpr mode_t NewFileMode = 0666;
constexpr mode_t PermissionBits = 07777;
/// Leftovers of a killed process with the same id may occupy names.
constexpr int NameAttempts = 1000;

std::string FreshName(const std::string& target) {
    static std::atomic<unsigned> count{0};
    std::string name = DirectoryOfSystemPath(target);
    if (name.back() != '/') name += '/';
    name += ".ostrel-" + std::to_string(::getpid()) + "-" + std::to_string(count++) + ".part";
    return name;
}

} // namespace

std::string DirectoryOfSystemPath(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

int WriteAll(SystemCalls& calls, int file, std::span<const TextView> pieces) {
    std::array<iovec, 256> batch;
    std::size_t next = 0, offset = 0; // of the first byte that is not written yet
    for (;;) {
        std::size_t count = 0;
        for (std::size_t i = next; i < pieces.size() && count < batch.size(); ++i) {
            const std::size_t skip = i == next ? offset : 0;
            if (pieces[i].size() == skip) continue;
            batch[count++] = {const_cast<char*>(pieces[i].data()) + skip, pieces[i].size() - skip};
        }
        if (count == 0) return 0;
        const ssize_t written = calls.Write(file, batch.data(), static_cast<int>(count));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return errno;
        if (written == 0) return EIO;
        offset += static_cast<std::size_t>(written);
        while (next < pieces.size() && offset >= pieces[next].size()) offset -= pieces[next++].size();
    }
}

TemporaryFile::~TemporaryFile() {
    Close();
    if (!name_.empty()) calls_.Unlink(name_.c_str());
}

int TemporaryFile::Open(Kind kind) {
    if (kind == Kind::Named) return OpenNamed();
    file_ = calls_.Open(DirectoryOfSystemPath(target_).c_str(), O_TMPFILE | O_WRONLY, NewFileMode);
    return file_ >= 0 ? 0 : OpenNamed();
}

int TemporaryFile::OpenNamed() {
    int error = 0;
    for (int i = 0; i < NameAttempts; ++i) {
        std::string name = FreshName(target_);
        file_ = calls_.Open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY, NewFileMode);
        if (file_ >= 0) {
            name_ = std::move(name);
            return 0;
        }
        error = errno;
        if (error != EEXIST && error != EINTR) break;
    }
    return error;
}

int TemporaryFile::Adopt(const std::string& path) {
    std::string name = FreshName(target_);
    if (calls_.Link(path.c_str(), name.c_str()) != 0) return errno;
    name_ = std::move(name);
    adopted_ = true;
    return 0;
}

int TemporaryFile::Resemble(const struct stat& model) {
    struct stat own;
    if (calls_.FileStatus(file_, own) != 0) return errno;
    // Only a privileged user may change the owner; for others the new file keeps theirs.
    bool changed = false;
    if (own.st_uid != model.st_uid || own.st_gid != model.st_gid)
        changed = calls_.SetOwner(file_, model.st_uid, model.st_gid) == 0;
    if (!changed && ((own.st_mode ^ model.st_mode) & PermissionBits) == 0) return 0;
    return calls_.SetMode(file_, model.st_mode & PermissionBits) == 0 ? 0 : errno;
}

int TemporaryFile::PlaceNew() {
    if (name_.empty()) {
        if (calls_.NameOpenFile(file_, target_.c_str()) == 0) return Close();
        again_ = true;
        return errno;
    }
    if (const int error = Close()) return error;
    if (calls_.RenameToFree(name_.c_str(), target_.c_str()) != 0) {
        again_ = errno == EEXIST;
        return errno;
    }
    name_.clear();
    return 0;
}

int TemporaryFile::PlaceInstead() {
    if (name_.empty()) {
        if (const int error = GetName()) return error;
    }
    // Some file systems report a full disk only at this point.
    if (const int error = Close()) return error;
    if (calls_.Rename(name_.c_str(), target_.c_str()) != 0) return errno;
    // A file that had both names already keeps them.
    if (adopted_) calls_.Unlink(name_.c_str());
    name_.clear();
    return 0;
}

int TemporaryFile::GetName() {
    int error = 0;
    for (int i = 0; i < NameAttempts; ++i) {
        std::string name = FreshName(target_);
        if (calls_.NameOpenFile(file_, name.c_str()) == 0) {
            name_ = std::move(name);
            return 0;
        }
        error = errno;
        if (error != EEXIST) break;
    }
    again_ = true;
    return error;
}

int TemporaryFile::Close() {
    if (file_ < 0) return 0;
    const int file = file_;
    file_ = -1;
    return calls_.Close(file) == 0 || errno == EINTR ? 0 : errno;
}

} // namespace ostrel

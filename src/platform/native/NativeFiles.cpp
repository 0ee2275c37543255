#include "platform/native/NativeFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <exception>
#include <optional>
#include <random>

#include <fcntl.h>
#include <unistd.h>

#include "platform/native/FileReplacement.h"
#include "platform/native/LocalTime.h"
#include "platform/native/NameMask.h"
#include "platform/native/SystemErrors.h"
#include "platform/native/TemporaryFile.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

/// The path names nothing that the system could have.
FileResult NoSuchPlace() { return Failure(ENOENT, 76); }

/// Fills the buffer up to the end of the file. Returns 0 or the system's error.
int ReadFully(SystemCalls& calls, int file, char* buffer, std::size_t size, std::size_t& count) {
    count = 0;
    while (count < size) {
        const ssize_t read = calls.Read(file, buffer + count, size - count);
        if (read < 0 && errno == EINTR) continue;
        if (read < 0) return errno;
        if (read == 0) break;
        count += static_cast<std::size_t>(read);
    }
    return 0;
}

/// A pipe without a writer would keep the opening waiting; plain files do not mind.
constexpr int ForReading = O_RDONLY | O_NONBLOCK | O_NOCTTY;

/// 0 for an open plain file, else an error: pipes and devices may never come to an end.
int StatusOfPlain(SystemCalls& calls, const OpenFile& file, struct stat& status) {
    if (calls.FileStatus(file.Number(), status) != 0) return errno;
    if (S_ISDIR(status.st_mode)) return EISDIR;
    return S_ISREG(status.st_mode) ? 0 : EOPNOTSUPP;
}

class NativeReader final : public FileReader {
public:
    NativeReader(SystemCalls& calls, int file) : calls_(calls), file_(calls, file) {}
    FileResult Read(char* buffer, std::size_t size, std::size_t& count) override {
        const int error = ReadFully(calls_, file_.Number(), buffer, size, count);
        return error ? Failure(error) : FileResult{};
    }

private:
    SystemCalls& calls_;
    OpenFile file_;
};

} // namespace

bool NativeFiles::IsFile(const Text& path) {
    const auto place = paths_.ToSystem(path);
    struct stat status;
    return place && calls_.Status(place->c_str(), status) == 0 && !S_ISDIR(status.st_mode) &&
           calls_.Access(place->c_str(), R_OK) == 0;
}

bool NativeFiles::IsDirectory(const Text& path) {
    const auto place = paths_.ToSystem(path);
    struct stat status;
    return place && calls_.Status(place->c_str(), status) == 0 && S_ISDIR(status.st_mode);
}

FileResult NativeFiles::Size(const Text& path, std::uint64_t& size) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    struct stat status;
    if (calls_.Status(place->c_str(), status) != 0) return PathFailure(calls_, *place, errno);
    if (S_ISDIR(status.st_mode)) return Failure(EISDIR);
    size = static_cast<std::uint64_t>(status.st_size);
    return {};
}

FileResult NativeFiles::Written(const Text& path, Date& when) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    struct stat status;
    if (calls_.Status(place->c_str(), status) != 0) return PathFailure(calls_, *place, errno);
    when = LocalTime(status.st_mtime);
    return {};
}

FileResult NativeFiles::Read(const Text& path, Text& content) try {
    constexpr std::size_t piece = std::size_t{64} << 10;
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    OpenFile file(calls_, calls_.Open(place->c_str(), ForReading));
    if (!file) return PathFailure(calls_, *place, errno);
    struct stat status;
    if (const int error = StatusOfPlain(calls_, file, status)) return Failure(error);

    // One byte more than the size tells the end of the file in the same call. The size is only a hint, since
    // the file may grow or shrink meanwhile.
    Text text;
    std::size_t size = 0;
    for (std::size_t room = static_cast<std::size_t>(status.st_size) + 1;; room = size + size / 2 + piece) {
        text.resize(room);
        std::size_t count = 0;
        const int error = ReadFully(calls_, file.Number(), text.data() + size, room - size, count);
        if (error) return Failure(error);
        size += count;
        if (size < room) break;
    }
    text.resize(size);
    content = std::move(text);
    return {};
} catch (const std::exception&) {
    return Failure(ENOMEM);
}

FileResult NativeFiles::Open(const Text& path, std::unique_ptr<FileReader>& reader) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    OpenFile file(calls_, calls_.Open(place->c_str(), ForReading));
    if (!file) return PathFailure(calls_, *place, errno);
    struct stat status;
    if (const int error = StatusOfPlain(calls_, file, status)) return Failure(error);
    reader = std::make_unique<NativeReader>(calls_, file.Take());
    return {};
}

FileResult NativeFiles::Replace(const Text& path, std::span<const TextView> pieces, const Text& backup) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    if (backup.empty()) return ReplaceFile(calls_, *place, pieces);
    const auto backupPlace = paths_.ToSystem(backup);
    if (!backupPlace) return NoSuchPlace();
    return ReplaceFile(calls_, *place, pieces, *backupPlace);
}

FileResult NativeFiles::Delete(const Text& path) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    return calls_.Unlink(place->c_str()) == 0 ? FileResult{} : PathFailure(calls_, *place, errno);
}

FileResult NativeFiles::Rename(const Text& from, const Text& to) {
    const auto source = paths_.ToSystem(from);
    const auto target = paths_.ToSystem(to);
    if (!source || !target) return NoSuchPlace();
    if (calls_.RenameToFree(source->c_str(), target->c_str()) == 0) return {};
    const int error = errno;
    struct stat status;
    const bool sourceThere = calls_.LinkStatus(source->c_str(), status) == 0;
    return PathFailure(calls_, sourceThere ? *target : *source, error);
}

FileResult NativeFiles::ClearAttributes(const Text& path) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    struct stat status;
    if (calls_.Status(place->c_str(), status) != 0) return PathFailure(calls_, *place, errno);
    if (status.st_mode & S_IWUSR) return {};
    const mode_t mode = (status.st_mode & 07777) | S_IWUSR;
    return calls_.SetModeOf(place->c_str(), mode) == 0 ? FileResult{} : Failure(errno);
}

FileResult NativeFiles::MakeDirectory(const Text& path) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    return calls_.MakeDirectory(place->c_str(), 0777) == 0 ? FileResult{}
                                                           : PathFailure(calls_, *place, errno);
}

FileResult NativeFiles::ChangeDirectory(const Text& path) {
    const auto place = paths_.ToSystem(path);
    if (!place) return NoSuchPlace();
    struct stat status;
    if (calls_.Status(place->c_str(), status) != 0) return Failure(errno, 76);
    if (!S_ISDIR(status.st_mode)) return Failure(ENOTDIR);
    if (calls_.Access(place->c_str(), X_OK) != 0) return Failure(errno);
    paths_.SetCurrent(*place);
    return {};
}

FileResult NativeFiles::ChangeDrive(const Text& drive) {
    if (drive.empty() || NativePaths::IsDriveHere(drive[0])) return {};
    return Failure(ENODEV);
}

std::vector<Text> NativeFiles::List(const Text& mask) {
    const std::size_t separator = mask.find_last_of("\\/:");
    const std::size_t start = separator == Text::npos ? 0 : separator + 1;
    const Text name = mask.substr(start);
    if (name.empty()) return {};
    const auto directory = paths_.ToSystem(start == 0 ? Text(".") : mask.substr(0, start));
    if (!directory) return {};

    struct stat status;
    const std::string prefix = directory->ends_with('/') ? *directory : *directory + "/";
    const auto isPlain = [&](const std::string& entry) {
        return calls_.Status((prefix + entry).c_str(), status) == 0 && S_ISREG(status.st_mode);
    };
    if (!IsMask(name)) {
        const bool there = name.find('\0') == Text::npos && isPlain(ToUtf8(name));
        return there ? std::vector<Text>{name} : std::vector<Text>{};
    }
    std::vector<DirectoryEntry> entries;
    if (calls_.Names(directory->c_str(), entries) != 0) return {};
    std::vector<Text> names;
    for (const DirectoryEntry& entry : entries) {
        if (entry.kind == DirectoryEntry::Kind::Other) continue;
        auto text = NativePaths::NameFromSystem(entry.name);
        if (!text || !MatchesMask(*text, name)) continue;
        if (entry.kind == DirectoryEntry::Kind::Plain || isPlain(entry.name))
            names.push_back(std::move(*text));
    }
    std::sort(names.begin(), names.end(), [](const Text& left, const Text& right) {
        const int order = CompareText(left, right);
        return order != 0 ? order < 0 : left < right;
    });
    return names;
}

Text NativeFiles::TemporaryDirectory() {
    for (const char* const candidate :
         {static_cast<const char*>(std::getenv("TMPDIR")), "/tmp", "/var/tmp"}) {
        struct stat status;
        if (!candidate || candidate[0] != '/') continue;
        if (calls_.Status(candidate, status) != 0 || !S_ISDIR(status.st_mode)) continue;
        if (auto path = NativePaths::FromSystem(candidate)) return *path;
    }
    return {};
}

FileResult NativeFiles::MakeTemporary(const Text& prefix, Text& path) {
    constexpr int attempts = 1000;
    constexpr TextView digits = "0123456789abcdefghijklmnopqrstuvwxyz";
    const Text directory = TemporaryDirectory();
    if (directory.empty() || prefix.find_first_of("\\/") != Text::npos) return NoSuchPlace();
    static thread_local std::minstd_rand random{std::random_device{}()};
    for (int i = 0; i < attempts; ++i) {
        Text candidate = directory + (directory.ends_with('\\') ? "" : "\\") + prefix;
        for (int k = 0; k < 8; ++k) candidate += digits[random() % digits.size()];
        candidate += ".tmp";
        const auto place = paths_.ToSystem(candidate);
        if (!place) return NoSuchPlace();
        OpenFile file(calls_, calls_.Open(place->c_str(), O_CREAT | O_EXCL | O_WRONLY, 0600));
        if (file) {
            path = std::move(candidate);
            return {};
        }
        if (errno != EEXIST && errno != EINTR) return PathFailure(calls_, *place, errno);
    }
    return Failure(EEXIST);
}

Text NativeFiles::ApplicationDirectory() {
    std::array<char, PATH_MAX> path;
    const ssize_t length = calls_.ReadLink("/proc/self/exe", path.data(), path.size());
    if (length <= 0) return {};
    const std::string program(path.data(), static_cast<std::size_t>(length));
    return NativePaths::FromSystem(DirectoryOfSystemPath(program)).value_or(Text());
}

Text NativeFiles::SystemErrorText(Long number) { return SystemSentence(number); }

} // namespace ostrel

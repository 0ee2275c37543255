#include "platform/native/SettingsFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>

#include "platform/native/FileReplacement.h"
#include "platform/native/SystemErrors.h"
#include "platform/native/TemporaryFile.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

/// Makes the directory and its parents, readable to the user alone.
void MakeDirectories(SystemCalls& calls, const std::string& directory) {
    struct stat status;
    if (calls.Status(directory.c_str(), status) == 0 || directory == "/") return;
    MakeDirectories(calls, DirectoryOfSystemPath(directory));
    calls.MakeDirectory(directory.c_str(), 0700);
}

template <class Work>
void ForEachLine(std::string_view text, Work work) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        work(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

} // namespace

std::optional<Variant> SettingsFile::Find(const Setting::Names& names) {
    std::string text;
    if (ReadText(text) != 0) return std::nullopt;
    std::optional<Variant> value;
    ForEachLine(text, [&](std::string_view line) {
        auto setting = ParseSetting(line);
        if (setting && SameNames(setting->names, names)) value = std::move(setting->value);
    });
    return value;
}

Text SettingsFile::Change(const std::function<bool(Lines&)>& change) {
    const std::string lockPath = path_ + ".lock";
    MakeDirectories(calls_, DirectoryOfSystemPath(path_));
    OpenFile lock(calls_, calls_.Open(lockPath.c_str(), O_RDWR | O_CREAT, 0600));
    if (!lock) return SystemSentence(errno);
    if (const int error = TakeLock(lock.Number())) return SystemSentence(error);

    Lines lines;
    if (const int error = ReadLines(lines)) return SystemSentence(error);
    if (!change(lines)) return {};
    std::vector<TextView> pieces;
    pieces.reserve(lines.size() * 2);
    for (const Line& line : lines) {
        pieces.push_back(line.text);
        pieces.push_back("\n");
    }
    return ReplaceFile(calls_, path_, pieces).text;
}

bool SettingsFile::SameNames(const Setting::Names& left, const Setting::Names& right) {
    return std::equal(left.begin(), left.end(), right.begin(),
                      [](const Text& a, const Text& b) { return EqualText(a, b); });
}

bool SettingsFile::Put(Lines& lines, Setting setting) {
    const auto isOld = [&](const Line& line) {
        return line.setting && SameNames(line.setting->names, setting.names);
    };
    const auto last = std::find_if(lines.rbegin(), lines.rend(), isOld);
    if (last != lines.rend() && last->setting->value == setting.value) return false;
    // The first of several keeps the place, so that a file that is read by people keeps its order.
    const auto first = std::find_if(lines.begin(), lines.end(), isOld);
    Line line{FormatSetting(setting), std::move(setting)};
    if (first == lines.end()) {
        lines.push_back(std::move(line));
        return true;
    }
    const auto names = line.setting->names;
    lines.erase(std::remove_if(first + 1, lines.end(),
                               [&](const Line& other) {
                                   return other.setting && SameNames(other.setting->names, names);
                               }),
                lines.end());
    *first = std::move(line);
    return true;
}

int SettingsFile::ReadLines(Lines& lines) {
    std::string text;
    if (const int error = ReadText(text)) return error;
    ForEachLine(text, [&](std::string_view line) {
        lines.push_back({std::string(line), ParseSetting(line)});
    });
    return 0;
}

int SettingsFile::ReadText(std::string& text) {
    OpenFile file(calls_, calls_.Open(path_.c_str(), O_RDONLY));
    if (!file) return errno == ENOENT ? 0 : errno;
    std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t count = calls_.Read(file.Number(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) return 0;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

int SettingsFile::TakeLock(int file) {
    // A program that hangs must not make this one hang.
    constexpr auto pause = std::chrono::milliseconds(5);
    constexpr int attempts = 1000;
    for (int i = 0; i < attempts; ++i) {
        if (calls_.TryLock(file) == 0) return 0;
        if (errno != EWOULDBLOCK && errno != EINTR) return errno;
        std::this_thread::sleep_for(pause);
    }
    return EWOULDBLOCK;
}

} // namespace ostrel

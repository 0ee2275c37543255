#include "tables/ReportList.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <tuple>

namespace ostrel::tables {

namespace {

constexpr std::string_view FirstLine = "Ostrel report files 1\n";
constexpr std::string_view InputWord = "Input ";
constexpr std::string_view Extension = ".ostrel";
/// About two million pages; more is no list of a report.
constexpr std::size_t MostBytes = std::size_t{64} << 20;

/// Reads at most so many bytes of a plain file.
ReportList::Found ReadStart(const std::string& path, std::size_t most, std::string& bytes,
                            struct stat& status) {
    // A pipe without a writer would keep the opening waiting.
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return errno == ENOENT || errno == ENOTDIR ? ReportList::Found::Nothing
                                                   : ReportList::Found::SomethingElse;
    bool good = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    if (good) bytes.resize(std::min(most, static_cast<std::size_t>(status.st_size)));
    std::size_t size = 0;
    while (good && size < bytes.size()) {
        const ssize_t count = read(file, bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        size += static_cast<std::size_t>(count);
    }
    close(file);
    bytes.resize(size);
    good = good && bytes.starts_with(FirstLine);
    return good ? ReportList::Found::List : ReportList::Found::SomethingElse;
}

bool IsNameOfReport(std::string_view stem, std::string_view name) {
    if (!name.starts_with(stem)) return false;
    const std::string_view rest = name.substr(stem.size());
    if (rest != ".htm" && rest != ".csv" && !(rest.starts_with('_') && rest.ends_with(".htm"))) return false;
    return std::none_of(rest.begin(), rest.end(), [](char c) {
        return static_cast<unsigned char>(c) < 32 || c == 127 || c == '/' || c == '\\' || c == ':';
    });
}

} // namespace

std::string ReportList::MarkOf(const std::string& input) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::weakly_canonical(input, error);
    // FNV-1a; nothing hangs on it but a question to the user.
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const char c : error ? input : path.string())
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    constexpr std::string_view digits = "0123456789abcdef";
    std::string mark;
    for (int shift = 60; shift >= 0; shift -= 4) mark += digits[(hash >> shift) & 15];
    return mark;
}

ReportList::Found ReportList::Read(const std::string& directory, std::string_view stem) {
    *this = {};
    std::string bytes;
    struct stat status {};
    const Found found = ReadStart(directory + "/" + NameOf(stem), MostBytes, bytes, status);
    if (found != Found::List) return found;
    std::string_view rest = std::string_view(bytes).substr(FirstLine.size());
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        if (line.starts_with(InputWord)) input = line.substr(InputWord.size());
        const std::size_t blank = line.find(' ');
        if (blank == std::string_view::npos || !IsNameOfReport(stem, line.substr(blank + 1))) continue;
        std::uint64_t size = UnknownSize;
        const auto [end, error] = std::from_chars(line.data(), line.data() + blank, size);
        if (line.substr(0, blank) != "-" && (error != std::errc() || end != line.data() + blank)) continue;
        files.emplace_back(line.substr(blank + 1), size);
    }
    return Found::List;
}

std::string ReportList::Spell() const {
    std::string text(FirstLine);
    text.append(InputWord).append(input) += '\n';
    for (const auto& [name, size] : files) {
        text.append(size == UnknownSize ? "-" : std::to_string(size)).append(" ").append(name) += '\n';
        if (text.size() > MostBytes) return {};
    }
    return text;
}

std::string MainPageIn(const std::string& directory) {
    std::tuple<time_t, long, std::string> last;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with('.') || !name.ends_with(Extension) || name.size() <= Extension.size() + 1)
            continue;
        std::string bytes;
        struct stat status {
        }, page{};
        if (ReadStart(entry->path().string(), FirstLine.size(), bytes, status) != ReportList::Found::List)
            continue;
        std::string main = name.substr(1, name.size() - 1 - Extension.size()) + ".htm";
        if (stat((directory + "/" + main).c_str(), &page) != 0 || !S_ISREG(page.st_mode)) continue;
        last = std::max(last, {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, std::move(main)});
    }
    return std::get<std::string>(last);
}

} // namespace ostrel::tables

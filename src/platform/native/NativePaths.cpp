#include "platform/native/NativePaths.h"

#include <climits>
#include <unistd.h>

#include "text/CodePage.h"

namespace ostrel {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

void AppendName(std::string& output, TextView name) {
    for (const char c : name)
        if (static_cast<unsigned char>(c) >= 0x80) {
            output += ToUtf8(name);
            return;
        }
    output += name;
}

} // namespace

NativePaths::NativePaths() {
    char buffer[PATH_MAX];
    if (::getcwd(buffer, sizeof buffer) && buffer[0] == '/') SetCurrent(buffer);
}

std::optional<std::string> NativePaths::ToSystem(TextView path) const {
    if (path.empty() || path.find('\0') != TextView::npos) return std::nullopt;
    if (path.size() >= 2 && path[1] == ':') {
        if (!IsDriveHere(path[0])) return std::nullopt;
        path.remove_prefix(2);
    } else if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        return std::nullopt;
    }

    std::string result;
    result.reserve(systemCurrent_.size() + path.size() + 8);
    if ((path.empty() || !IsSeparator(path[0])) && systemCurrent_ != "/") result = systemCurrent_;
    std::size_t start = 0;
    while (start < path.size()) {
        std::size_t end = start;
        while (end < path.size() && !IsSeparator(path[end])) ++end;
        const TextView name = path.substr(start, end - start);
        if (name == "..") {
            const std::size_t parent = result.rfind('/');
            result.resize(parent == std::string::npos ? 0 : parent);
        } else if (!name.empty() && name != ".") {
            result += '/';
            AppendName(result, name);
        }
        start = end + 1;
    }
    // A trailing separator denotes a directory, and the system refuses a file's path with one.
    if (result.empty() || (!path.empty() && IsSeparator(path.back()))) result += '/';
    return result;
}

std::optional<Text> NativePaths::FromSystem(std::string_view path) {
    if (path.find('\\') != std::string_view::npos) return std::nullopt;
    std::optional<Text> text = FromUtf8(path);
    if (!text) return std::nullopt;
    for (char& c : *text)
        if (c == '/') c = '\\';
    while (text->size() > 1 && text->back() == '\\') text->pop_back();
    return "C:" + *text;
}

std::optional<Text> NativePaths::NameFromSystem(std::string_view name) {
    if (name.find('\\') != std::string_view::npos) return std::nullopt;
    return FromUtf8(name);
}

void NativePaths::SetCurrent(std::string_view directory) {
    while (directory.size() > 1 && directory.back() == '/') directory.remove_suffix(1);
    std::optional<Text> text = FromSystem(directory);
    if (!text) return;
    current_ = std::move(*text);
    systemCurrent_ = directory;
}

} // namespace ostrel

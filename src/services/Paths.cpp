#include "services/Paths.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "text/CodePage.h"

namespace ostrel::services {

namespace {

Text WithLast(TextView text, char last) {
    Text result(text);
    if (!text.empty() && text.back() != last) result += last;
    return result;
}

Text WithoutLast(TextView text, char last) {
    if (!text.empty() && text.back() == last) text.remove_suffix(1);
    return Text(text);
}

/// How many characters the directory of a path has.
std::size_t DirectoryLength(TextView path) { return path.find_last_of("\\/") + 1; }

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const unsigned char upper = UpperByte(c);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

/// The delimiter that stands most often behind the first `keep` characters, or 0 at a tie.
char MoreFrequentDelimiter(TextView path, std::size_t keep) {
    const TextView behind = path.substr(std::min(keep, path.size()));
    const auto slashes = std::count(behind.begin(), behind.end(), '/');
    const auto backslashes = std::count(behind.begin(), behind.end(), '\\');
    return slashes == backslashes ? 0 : slashes > backslashes ? '/' : '\\';
}

} // namespace

Text AddMissingBackslash(TextView text) { return WithLast(text, '\\'); }

Text AddMissingSlash(TextView text) { return WithLast(text, '/'); }

Text RemoveLastBackslash(TextView text) { return WithoutLast(text, '\\'); }

Text RemoveLastSlash(TextView text) { return WithoutLast(text, '/'); }

Text BuildPath(TextView directory, TextView file) {
    if (file.empty()) return {};
    if (file.find('\\') != NotFound) return Text(file);
    return AddMissingBackslash(directory).append(file);
}

Text FileDirectory(TextView path) { return Text(path.substr(0, DirectoryLength(path))); }

Text FileName(TextView path) { return Text(path.substr(DirectoryLength(path))); }

Text FileNameOnly(TextView path) {
    const TextView name = path.substr(DirectoryLength(path));
    return Text(name.substr(0, name.rfind('.')));
}

Text FileExtension(TextView path) {
    const std::size_t dot = path.rfind('.');
    return dot == NotFound ? Text() : Text(TrimBlanks(path.substr(dot + 1)));
}

Text FileExtensionChange(TextView path, TextView extension) {
    path = TrimBlanks(path);
    if (path.empty()) return {};
    const TextView stem = path.substr(0, path.rfind('.'));
    if (extension.empty()) return Text(stem);
    if (extension[0] == '.') extension.remove_prefix(1);
    return Text(stem).append(".").append(extension);
}

bool FileInternet(TextView path) {
    const std::size_t mark = path.find("://");
    if (mark == NotFound) return false;
    const TextView scheme = path.substr(0, mark);
    return EqualText(scheme, "http") || EqualText(scheme, "https") || EqualText(scheme, "ftp") ||
           EqualText(scheme, "gopher");
}

Text FilePathSimplify(TextView path, TextView directory) {
    const Text start = AddMissingBackslash(directory);
    if (start.empty() || path.size() <= start.size() || !StartsWithText(path, start)) return Text(path);
    return Text(path.substr(start.size()));
}

Text FilePathFromURL(TextView path) {
    for (const TextView scheme : {TextView("file:///"), TextView("file://")})
        if (StartsWithText(path, scheme)) return FilePathFromURLCharacters(path.substr(scheme.size()), true);
    return FilePathFromURLCharacters(path, true);
}

Text FilePathFromURLCharacters(TextView path, bool convertSlashes) {
    Text result;
    result.reserve(path.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == '%' && i + 2 < path.size()) {
            // Codes below 16 would need a leading zero, which is not understood: "%0A" stays.
            const int high = HexDigit(path[i + 1]), low = HexDigit(path[i + 2]);
            if (high > 0 && low >= 0)
                result += static_cast<char>(high * 16 + low);
            else
                for (const char c : path.substr(i, 3)) result += convertSlashes && c == '/' ? '\\' : c;
            i += 2;
            continue;
        }
        result += convertSlashes && path[i] == '/' ? '\\' : path[i];
    }
    return result;
}

Text FilePathShorten(TextView path, TextView delimiter, Long maxLength, Long startKeep, Long slashesStart,
                     Long slashesEnd) {
    path = TrimBlanks(path);
    const auto keep = static_cast<std::size_t>(std::max<Long>(startKeep, 0));
    const std::int64_t inHead = std::max<Long>(slashesStart, 1), inTail = std::max<Long>(slashesEnd, 1);
    if (path.empty() || static_cast<std::int64_t>(path.size()) <= maxLength) return Text(path);
    if (!delimiter.empty() && delimiter != "/" && delimiter != "\\") return Text(path);
    const char mark = delimiter.empty() ? MoreFrequentDelimiter(path, keep) : delimiter[0];
    if (mark == 0) return Text(path);

    std::vector<std::size_t> marks;
    for (std::size_t i = path.find(mark, keep); i != NotFound; i = path.find(mark, i + 1)) marks.push_back(i);
    const auto count = static_cast<std::int64_t>(marks.size());
    if (count <= inHead + inTail) return Text(path);

    const TextView head = path.substr(0, marks[static_cast<std::size_t>(inHead - 1)] + 1);
    // The longest tail that fits, or the shortest there may be.
    std::int64_t n = count - inHead - 1;
    const auto tail = [&] { return path.substr(marks[static_cast<std::size_t>(count - n)]); };
    while (n > inTail && static_cast<std::int64_t>(head.size() + 3 + tail().size()) > maxLength) --n;
    return Text(head).append("...").append(tail());
}

Text ErrorMessageDoesNotExist(TextView message, TextView file) {
    Text result(TrimBlanks(message));
    if (!file.empty()) result.append(" [").append(file).append("]");
    return result += " does not exist.";
}

Text ErrorMessageNotDefined(TextView message) { return Text(TrimBlanks(message)) + " has not been defined."; }

Text ErrorMessageShortenFile(TextView message1, TextView path, TextView message2) {
    Text result(message1);
    result.append(" [").append(FilePathShorten(path, {}, 30, 2, 2, 2)).append("]");
    if (message2.empty()) return result += ".";
    return result.append(" ").append(message2);
}

} // namespace ostrel::services

#include <algorithm>
#include <array>

#include "control/Bag.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr TextView Heading = "# Properties of an OstrelWebHelp control\n";
constexpr TextView PictureWord = "picture ";
constexpr TextView Separator = " = ";

bool IsPlain(char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; }

/// Where the run of characters that stand for themselves ends; values may be megabytes long.
std::size_t PlainEnd(TextView text, std::size_t from) {
    while (from < text.size() && IsPlain(text[from])) ++from;
    return from;
}

void AppendQuoted(Text& output, TextView text) {
    constexpr TextView Digits = "0123456789ABCDEF";
    output += '"';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = PlainEnd(text, i);
        output.append(text, i, end - i);
        if ((i = end) == text.size()) break;
        switch (text[i]) {
        case '"':
            output += "\\\"";
            break;
        case '\\':
            output += "\\\\";
            break;
        case '\r':
            output += "\\r";
            break;
        case '\n':
            output += "\\n";
            break;
        case '\t':
            output += "\\t";
            break;
        default: {
            const auto byte = static_cast<unsigned char>(text[i]);
            output += "\\x";
            output += Digits[byte >> 4];
            output += Digits[byte & 15];
        }
        }
    }
    output += '"';
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

/// What stands between the quotes; nothing where the quoting is damaged.
std::optional<Text> ParseQuoted(TextView text) {
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') return std::nullopt;
    text = text.substr(1, text.size() - 2);
    Text value;
    value.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = PlainEnd(text, i);
        value.append(text, i, end - i);
        if ((i = end) == text.size()) break;
        if (text[i] == '"') return std::nullopt;
        if (text[i] != '\\') {
            value += text[i];
            continue;
        }
        if (++i == text.size()) return std::nullopt;
        switch (text[i]) {
        case '"':
        case '\\':
            value += text[i];
            break;
        case 'r':
            value += '\r';
            break;
        case 'n':
            value += '\n';
            break;
        case 't':
            value += '\t';
            break;
        case 'x': {
            const int high = i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
            const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
            if (low < 0) return std::nullopt;
            value += static_cast<char>(high * 16 + low);
            i += 2;
            break;
        }
        default:
            return std::nullopt;
        }
    }
    return value;
}

std::optional<PropertyValue> ParseValue(TextView text) {
    if (text == "True") return Flag(true);
    if (text == "False") return Flag(false);
    if (text.starts_with(PictureWord)) {
        if (auto path = ParseQuoted(TrimBlanks(text.substr(PictureWord.size()))))
            return Picture{std::move(*path)};
        return std::nullopt;
    }
    if (text.starts_with('"')) {
        if (auto value = ParseQuoted(text)) return std::move(*value);
        return std::nullopt;
    }
    if (const auto number = ToLong(text)) return *number;
    return std::nullopt;
}

bool IsKey(TextView key) {
    return !key.empty() && std::all_of(key.begin(), key.end(), [](char c) {
        return (UpperByte(c) >= 'A' && UpperByte(c) <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    });
}

} // namespace

Text FormatBag(const MapBag& bag) {
    Text output(Heading);
    for (const auto& [key, value] : bag.Entries()) {
        // A key from elsewhere that no line can hold stays out.
        if (!IsKey(key)) continue;
        output += key;
        output += Separator;
        if (const Text* text = std::get_if<Text>(&value)) {
            AppendQuoted(output, *text);
        } else if (const Picture* picture = std::get_if<Picture>(&value)) {
            output += PictureWord;
            AppendQuoted(output, picture->path);
        } else if (const Flag* flag = std::get_if<Flag>(&value)) {
            output += *flag ? "True" : "False";
        } else {
            AppendLong(output, std::get<Long>(value));
        }
        output += '\n';
    }
    return output;
}

void ParseBag(TextView text, MapBag& bag) {
    constexpr TextView Mark = "\xEF\xBB\xBF";
    if (text.starts_with(Mark)) text.remove_prefix(Mark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        TextView line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        const std::size_t equals = line.find('=');
        if (line.starts_with('#') || equals == NotFound) continue;
        const TextView key = TrimBlanks(line.substr(0, equals));
        if (!IsKey(key)) continue;
        if (auto value = ParseValue(TrimBlanks(line.substr(equals + 1))))
            bag.Write(Text(key), std::move(*value));
    }
}

FileResult FileBag::Load() {
    Clear();
    if (!files_.IsFile(path_)) return {};
    Text content;
    const FileResult result = files_.Read(path_, content);
    if (result) ParseBag(content, *this);
    return result;
}

FileResult FileBag::Save() const {
    const Text content = FormatBag(*this);
    const std::array<TextView, 1> pieces{content};
    return files_.Replace(path_, pieces);
}

} // namespace ostrel

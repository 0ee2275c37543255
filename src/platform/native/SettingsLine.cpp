#include "platform/native/SettingsLine.h"

#include <charconv>

#include "text/CodePage.h"

namespace ostrel {

namespace {

constexpr std::string_view HexDigits = "0123456789ABCDEF";

void AppendQuoted(std::string& line, TextView text) {
    line += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            line += '\\';
            line += c;
        } else if (byte < 32 || (byte >= 127 && byte < 160)) {
            line += "\\x";
            line += HexDigits[byte / 16];
            line += HexDigits[byte % 16];
        } else if (byte < 128) {
            line += c;
        } else {
            line += ToUtf8({&c, 1});
        }
    }
    line += '"';
}

int HexValue(char c) {
    const std::size_t digit = HexDigits.find(static_cast<char>(UpperByte(c)));
    return digit == std::string_view::npos ? -1 : static_cast<int>(digit);
}

/// Reads a line from front to back; every step returns whether it matched.
class Reader {
public:
    explicit Reader(std::string_view line) : line_(line) {}

    bool AtEnd() {
        SkipBlanks();
        return at_ == line_.size();
    }
    bool Take(char c) {
        SkipBlanks();
        if (at_ >= line_.size() || line_[at_] != c) return false;
        ++at_;
        return true;
    }
    bool TakeQuoted(Text& text) {
        if (!Take('"')) return false;
        text.clear();
        while (at_ < line_.size()) {
            if (line_[at_] == '"') {
                ++at_;
                return true;
            }
            if (!TakeCharacter(text)) return false;
        }
        return false;
    }
    bool TakeNumber(Double& number) {
        SkipBlanks();
        const auto [end, error] = std::from_chars(line_.data() + at_, line_.data() + line_.size(), number);
        if (error != std::errc()) return false;
        at_ = static_cast<std::size_t>(end - line_.data());
        return true;
    }

private:
    void SkipBlanks() {
        while (at_ < line_.size() && (line_[at_] == ' ' || line_[at_] == '\t' || line_[at_] == '\r')) ++at_;
    }
    bool TakeCharacter(Text& text) {
        if (line_[at_] == '\\') return TakeEscape(text);
        if (static_cast<unsigned char>(line_[at_]) < 128) {
            text += line_[at_++];
            return true;
        }
        const auto scalar = NextScalar(line_, at_);
        const auto byte = scalar ? ByteOfScalar(*scalar) : std::nullopt;
        if (byte) text += static_cast<char>(*byte);
        return byte.has_value();
    }
    bool TakeEscape(Text& text) {
        if (at_ + 1 >= line_.size()) return false;
        const char kind = line_[at_ + 1];
        if (kind == '"' || kind == '\\') {
            text += kind;
            at_ += 2;
            return true;
        }
        if (kind != 'x' || at_ + 3 >= line_.size()) return false;
        const int high = HexValue(line_[at_ + 2]), low = HexValue(line_[at_ + 3]);
        if (high < 0 || low < 0) return false;
        text += static_cast<char>(high * 16 + low);
        at_ += 4;
        return true;
    }

    std::string_view line_;
    std::size_t at_ = 0;
};

} // namespace

std::string FormatSetting(const Setting& setting) {
    std::string line;
    for (const Text& name : setting.names) {
        AppendQuoted(line, name);
        line += ' ';
    }
    line += "= ";
    if (const Text* text = std::get_if<Text>(&setting.value)) {
        AppendQuoted(line, *text);
    } else {
        char digits[64];
        const auto end = std::to_chars(digits, digits + sizeof digits, std::get<Double>(setting.value)).ptr;
        line.append(digits, end);
    }
    return line;
}

std::optional<Setting> ParseSetting(std::string_view line) {
    Reader reader(line);
    Setting setting;
    for (Text& name : setting.names)
        if (!reader.TakeQuoted(name)) return std::nullopt;
    if (!reader.Take('=')) return std::nullopt;
    Text text;
    Double number = 0;
    if (reader.TakeNumber(number))
        setting.value = number;
    else if (reader.TakeQuoted(text))
        setting.value = std::move(text);
    else
        return std::nullopt;
    if (!reader.AtEnd()) return std::nullopt;
    return setting;
}

} // namespace ostrel

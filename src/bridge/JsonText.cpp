#include "bridge/JsonText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "bridge/Refusal.h"
#include "text/CodePage.h"

namespace ostrel::bridge {

namespace {

/// A line of more values than this is refused: the tree of a value takes many times its bytes on the line.
constexpr std::size_t MaxValues = 20'000'000;

/// What a line holds outside its strings.
struct Shape {
    int deepest = 0;        ///< nesting of brackets
    std::size_t values = 1; ///< at most that many
};

/// The library builds its tree, and takes it apart, at any cost; so the line is looked over before.
Shape ShapeOf(std::string_view line) {
    Shape shape;
    int depth = 0;
    bool inString = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (inString) {
            if (c == '\\') ++i;
            if (c == '"') inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == ',') {
            ++shape.values;
        } else if (c == '{' || c == '[') {
            ++shape.values;
            shape.deepest = std::max(shape.deepest, ++depth);
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return shape;
}

/// The escape sequence of one byte in a JSON string and its length; 0 for a byte that needs none.
struct Escape {
    char text[7];
    unsigned char length;
};

Escape EscapeOf(unsigned byte) {
    switch (byte) {
    case '"':
        return {"\\\"", 2};
    case '\\':
        return {"\\\\", 2};
    case '\b':
        return {"\\b", 2};
    case '\t':
        return {"\\t", 2};
    case '\n':
        return {"\\n", 2};
    case '\f':
        return {"\\f", 2};
    case '\r':
        return {"\\r", 2};
    default:
        break;
    }
    if (byte >= 0x20) return {"", 0};
    constexpr char digits[] = "0123456789abcdef";
    return {{'\\', 'u', '0', '0', digits[byte >> 4], digits[byte & 15], '\0'}, 6};
}

using EscapeTable = std::array<Escape, 256>;

/// Returns the escape sequence of a byte of UTF-8 text.
const EscapeTable& Utf8Escapes() {
    static const EscapeTable table = [] {
        EscapeTable made{};
        for (unsigned byte = 0; byte < 256; ++byte) made[byte] = EscapeOf(byte);
        return made;
    }();
    return table;
}

/// Returns the UTF-8 or escape sequence of a byte of the code page.
const EscapeTable& CodePageEscapes() {
    static const EscapeTable table = [] {
        EscapeTable made = Utf8Escapes();
        for (unsigned byte = 0x80; byte < 256; ++byte) {
            const char character = static_cast<char>(byte);
            const std::string utf8 = ToUtf8(TextView(&character, 1));
            utf8.copy(made[byte].text, sizeof made[byte].text);
            made[byte].length = static_cast<unsigned char>(utf8.size());
        }
        return made;
    }();
    return table;
}

void AppendQuoted(std::string& output, std::string_view text, const EscapeTable& escapes) {
    output += '"';
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Escape& escape = escapes[static_cast<unsigned char>(text[i])];
        if (escape.length == 0) continue;
        output.append(text, plain, i - plain);
        output.append(escape.text, escape.length);
        plain = i + 1;
    }
    output.append(text, plain, text.size() - plain);
    output += '"';
}

template <class Floating>
std::string_view ShortestDigits(Floating value, std::array<char, 32>& buffer) {
    if (!std::isfinite(value)) return "null";
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

} // namespace

Json ParseRequest(std::string_view line) {
    const Shape shape = ShapeOf(line);
    if (shape.deepest > MaxNesting)
        throw Refusal("The line is nested deeper than " + std::to_string(MaxNesting) + " levels.");
    if (shape.values > MaxValues)
        throw Refusal("The line holds more than " + std::to_string(MaxValues) + " values.");
    // The library takes a NUL for the end of its input.
    if (line.find('\0') != std::string_view::npos) throw Refusal("The line is no JSON object.");
    Json request = Json::parse(line.begin(), line.end(), nullptr, false);
    if (!request.is_object()) throw Refusal("The line is no JSON object.");
    return request;
}

void JsonWriter::Separate() {
    if (output_.size() == start_) return;
    const char last = output_.back();
    if (last != '[' && last != '{' && last != ':') output_ += ',';
}

void JsonWriter::Open(char bracket) {
    Separate();
    output_ += bracket;
}

void JsonWriter::Key(std::string_view name) {
    Utf8(name);
    output_ += ':';
}

void JsonWriter::String(TextView text) {
    Separate();
    AppendQuoted(output_, text, CodePageEscapes());
}

void JsonWriter::Utf8(std::string_view text) {
    Separate();
    AppendQuoted(output_, text, Utf8Escapes());
}

void JsonWriter::Whole(long long value) { Raw(std::to_string(value)); }

void JsonWriter::Number(double value) {
    std::array<char, 32> buffer;
    Raw(ShortestDigits(value, buffer));
}

void JsonWriter::Number(float value) {
    std::array<char, 32> buffer;
    Raw(ShortestDigits(value, buffer));
}

void JsonWriter::Raw(std::string_view json) {
    Separate();
    output_ += json;
}

void JsonWriter::Object(std::string_view inside) {
    BeginObject();
    output_ += inside;
    EndObject();
}

void JsonWriter::Array(std::string_view inside) {
    BeginArray();
    output_ += inside;
    EndArray();
}

} // namespace ostrel::bridge

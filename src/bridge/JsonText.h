#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "text/Text.h"

namespace ostrel::bridge {

using Json = nlohmann::json;

/// The maximum nesting depth of arrays and objects in a line.
inline constexpr int MaxNesting = 64;

/// Parses a line as an object. Throws `Refusal` for anything else.
Json ParseRequest(std::string_view line);

/// Writes JSON at the end of a text, commas included. Answers are written straight from the component's own
/// values, without a tree in between, since one may hold a page of many megabytes.
class JsonWriter {
public:
    explicit JsonWriter(std::string& output) : output_(output), start_(output.size()) {}

    void BeginObject() { Open('{'); }
    void EndObject() { output_ += '}'; }
    void BeginArray() { Open('['); }
    void EndArray() { output_ += ']'; }
    /// The key of the next value; plain ASCII.
    void Key(std::string_view name);

    /// A text of the component, which becomes UTF-8.
    void String(TextView text);
    /// A text that is UTF-8 already.
    void Utf8(std::string_view text);
    void Flag(bool value) { Raw(value ? "true" : "false"); }
    void Null() { Raw("null"); }
    void Whole(long long value);
    /// The shortest digits that read back as the same number; null for what JSON cannot represent.
    void Number(double value);
    void Number(float value);
    /// A value that is JSON already.
    void Raw(std::string_view json);
    /// Writes an object or array whose content is JSON already.
    void Object(std::string_view inside);
    void Array(std::string_view inside);

private:
    void Open(char bracket);
    void Separate();

    std::string& output_;
    std::size_t start_;
};

} // namespace ostrel::bridge

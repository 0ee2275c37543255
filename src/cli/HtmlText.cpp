#include "cli/HtmlText.h"

#include <charconv>
#include <optional>

#include "services/SpecialCharacters.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

constexpr std::size_t LongestEntity = 10; // "&#1114111;"

void AppendUtf8(std::string& output, char32_t scalar) {
    const auto byte = [&](char32_t bits) { output += static_cast<char>(bits); };
    if (scalar < 0x20 || (scalar >= 0x7F && scalar < 0xA0)) return byte(' ');
    if (scalar < 0x80) return byte(scalar);
    if (scalar < 0x800) {
        byte(0xC0 | scalar >> 6);
    } else {
        if (scalar < 0x10000) {
            byte(0xE0 | scalar >> 12);
        } else {
            byte(0xF0 | scalar >> 18);
            byte(0x80 | (scalar >> 12 & 0x3F));
        }
        byte(0x80 | (scalar >> 6 & 0x3F));
    }
    byte(0x80 | (scalar & 0x3F));
}

/// The character of an entity, "&" and ";" included.
std::optional<char32_t> ScalarOf(TextView entity) {
    for (const services::SpecialCharacter& special : services::SpecialCharacters())
        if (special.entity == entity) return ScalarOfByte(static_cast<unsigned char>(special.character));
    if (entity == "&apos;") return U'\'';
    if (entity.size() < 4 || entity[1] != '#') return std::nullopt;
    const bool hexadecimal = entity[2] == 'x' || entity[2] == 'X';
    const TextView digits = entity.substr(hexadecimal ? 3 : 2, entity.size() - (hexadecimal ? 4 : 3));
    unsigned long number = 0;
    const auto [end, problem] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, hexadecimal ? 16 : 10);
    const bool surrogate = number >= 0xD800 && number < 0xE000;
    if (problem != std::errc() || end != digits.data() + digits.size() || number > 0x10FFFF || surrogate)
        return std::nullopt;
    return static_cast<char32_t>(number);
}

} // namespace

std::string PlainText(TextView html) {
    std::string plain;
    plain.reserve(html.size());
    for (std::size_t i = 0; i < html.size();) {
        if (html[i] == '&') {
            const std::size_t length = html.substr(i, LongestEntity).find(';');
            if (length != TextView::npos) {
                if (const auto scalar = ScalarOf(html.substr(i, length + 1))) {
                    AppendUtf8(plain, *scalar);
                    i += length + 1;
                    continue;
                }
            }
        }
        AppendUtf8(plain, ScalarOfByte(static_cast<unsigned char>(html[i++])));
    }
    return plain;
}

} // namespace ostrel::cli

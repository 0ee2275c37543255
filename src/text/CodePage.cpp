#include "text/CodePage.h"

#include <cstring>

namespace ostrel {

namespace {

struct Pair {
    unsigned char lower, upper;
};

constexpr Pair HighPairs[] = {{0x9A, 0x8A}, {0x9C, 0x8C}, {0x9E, 0x8E}, {0xFF, 0x9F}};

constexpr unsigned char FoldUp(unsigned c) {
    if (c >= 'a' && c <= 'z') return static_cast<unsigned char>(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<unsigned char>(c - 32);
    for (const Pair& pair : HighPairs)
        if (pair.lower == c) return pair.upper;
    return static_cast<unsigned char>(c);
}

constexpr unsigned char FoldDown(unsigned c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 32);
    for (const Pair& pair : HighPairs)
        if (pair.upper == c) return pair.lower;
    return static_cast<unsigned char>(c);
}

constexpr char16_t HighScalars[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// How many bytes at the start are the same in whole words of 8, so that only what may differ is folded.
std::size_t EqualWords(const char* left, const char* right, std::size_t size) {
    std::size_t i = 0;
    for (; i + 8 <= size; i += 8) {
        std::uint64_t a, b;
        std::memcpy(&a, left + i, 8);
        std::memcpy(&b, right + i, 8);
        if (a != b) break;
    }
    return i;
}

} // namespace

#define OSTREL_ROW(fold, base)                                                                               \
    fold(base), fold(base + 1), fold(base + 2), fold(base + 3), fold(base + 4), fold(base + 5),              \
        fold(base + 6), fold(base + 7), fold(base + 8), fold(base + 9), fold(base + 10), fold(base + 11),    \
        fold(base + 12), fold(base + 13), fold(base + 14), fold(base + 15)
#define OSTREL_TABLE(fold)                                                                                   \
    OSTREL_ROW(fold, 0x00), OSTREL_ROW(fold, 0x10), OSTREL_ROW(fold, 0x20), OSTREL_ROW(fold, 0x30),          \
        OSTREL_ROW(fold, 0x40), OSTREL_ROW(fold, 0x50), OSTREL_ROW(fold, 0x60), OSTREL_ROW(fold, 0x70),      \
        OSTREL_ROW(fold, 0x80), OSTREL_ROW(fold, 0x90), OSTREL_ROW(fold, 0xA0), OSTREL_ROW(fold, 0xB0),      \
        OSTREL_ROW(fold, 0xC0), OSTREL_ROW(fold, 0xD0), OSTREL_ROW(fold, 0xE0), OSTREL_ROW(fold, 0xF0)

const unsigned char UpperTable[256] = {OSTREL_TABLE(FoldUp)};
const unsigned char LowerTable[256] = {OSTREL_TABLE(FoldDown)};

#undef OSTREL_TABLE
#undef OSTREL_ROW

Text Upper(TextView text) {
    Text result(text);
    for (char& c : result) c = static_cast<char>(UpperByte(c));
    return result;
}

Text Lower(TextView text) {
    Text result(text);
    for (char& c : result) c = static_cast<char>(LowerByte(c));
    return result;
}

int CompareText(TextView left, TextView right) {
    const std::size_t common = left.size() < right.size() ? left.size() : right.size();
    std::size_t i = EqualWords(left.data(), right.data(), common);
    for (; i < common; ++i) {
        const int difference = int{UpperByte(left[i])} - int{UpperByte(right[i])};
        if (difference != 0) return difference;
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

bool EqualText(TextView left, TextView right) {
    return left.size() == right.size() && CompareText(left, right) == 0;
}

bool StartsWithText(TextView text, TextView prefix) {
    return text.size() >= prefix.size() && EqualText(text.substr(0, prefix.size()), prefix);
}

bool EndsWithText(TextView text, TextView suffix) {
    return text.size() >= suffix.size() && EqualText(text.substr(text.size() - suffix.size()), suffix);
}

TextView TrimLeft(TextView text) {
    const std::size_t start = text.find_first_not_of(' ');
    return start == NotFound ? TextView{} : text.substr(start);
}

TextView TrimRight(TextView text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

TextView TrimBlanks(TextView text) { return TrimLeft(TrimRight(text)); }

TextView TrimCrLfView(TextView text) {
    const std::size_t start = text.find_first_not_of("\r\n ");
    return start == NotFound ? TextView{} : text.substr(start, text.find_last_not_of("\r\n ") - start + 1);
}

Text TrimCrLf(TextView text) { return Text(TrimCrLfView(text)); }

char32_t ScalarOfByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? char32_t{HighScalars[byte - 0x80]} : char32_t{byte};
}

std::optional<unsigned char> ByteOfScalar(char32_t scalar) {
    if (scalar < 0x80 || (scalar >= 0xA0 && scalar <= 0xFF)) return static_cast<unsigned char>(scalar);
    for (unsigned i = 0; i < 32; ++i)
        if (HighScalars[i] == scalar) return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

std::string ToUtf8(TextView text) {
    std::string result;
    result.reserve(text.size());
    for (char c : text) {
        const char32_t scalar = ScalarOfByte(static_cast<unsigned char>(c));
        if (scalar < 0x80) {
            result += static_cast<char>(scalar);
        } else if (scalar < 0x800) {
            result += static_cast<char>(0xC0 | (scalar >> 6));
            result += static_cast<char>(0x80 | (scalar & 0x3F));
        } else {
            result += static_cast<char>(0xE0 | (scalar >> 12));
            result += static_cast<char>(0x80 | ((scalar >> 6) & 0x3F));
            result += static_cast<char>(0x80 | (scalar & 0x3F));
        }
    }
    return result;
}

std::optional<char32_t> NextScalar(std::string_view utf8, std::size_t& position) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char first = byte(position);
    const std::size_t start = position++;
    if (first < 0x80) return char32_t{first};
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || start + static_cast<std::size_t>(more) >= utf8.size())
        return std::nullopt;
    char32_t scalar = first & (0x3F >> more);
    for (int i = 1; i <= more; ++i) {
        const unsigned char next = byte(start + static_cast<std::size_t>(i));
        if ((next & 0xC0) != 0x80) return std::nullopt;
        scalar = (scalar << 6) | (next & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (scalar < smallest[more] || scalar > 0x10FFFF || (scalar >= 0xD800 && scalar <= 0xDFFF))
        return std::nullopt;
    position = start + static_cast<std::size_t>(more) + 1;
    return scalar;
}

std::optional<Text> FromUtf8(std::string_view utf8, char32_t* offender) {
    Text result;
    result.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const std::optional<char32_t> scalar = NextScalar(utf8, i);
        const std::optional<unsigned char> byte = scalar ? ByteOfScalar(*scalar) : std::nullopt;
        if (!byte) {
            if (offender) *offender = scalar.value_or(0xFFFD);
            return std::nullopt;
        }
        result += static_cast<char>(*byte);
    }
    return result;
}

} // namespace ostrel

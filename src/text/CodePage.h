#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "text/Text.h"
#include "text/TextSearch.h"

namespace ostrel {

/// Case folding over Windows-1252. The order of a text comparison is that of the upper-cased bytes.
extern const unsigned char UpperTable[256];
extern const unsigned char LowerTable[256];

inline unsigned char UpperByte(char c) { return UpperTable[static_cast<unsigned char>(c)]; }
inline unsigned char LowerByte(char c) { return LowerTable[static_cast<unsigned char>(c)]; }

Text Upper(TextView text);
Text Lower(TextView text);

/// Text comparison: below 0, 0 or above 0, ignoring case.
int CompareText(TextView left, TextView right);
bool EqualText(TextView left, TextView right);
bool StartsWithText(TextView text, TextView prefix);
bool EndsWithText(TextView text, TextView suffix);

/// Blanks are character 32 alone.
TextView TrimBlanks(TextView text);
TextView TrimLeft(TextView text);
TextView TrimRight(TextView text);
/// Without the blanks, CR and LF at both ends.
TextView TrimCrLfView(TextView text);
Text TrimCrLf(TextView text);

/// The Unicode scalar of a byte; the five unassigned codes stand for the control characters of the same
/// number.
char32_t ScalarOfByte(unsigned char byte);
/// The byte of a scalar, or nothing where the code page lacks it.
std::optional<unsigned char> ByteOfScalar(char32_t scalar);

/// UTF-8 of a text of the component.
std::string ToUtf8(TextView text);

/// One scalar of UTF-8 from `position`, which moves behind it; nothing for malformed input, with `position`
/// moved by one byte.
std::optional<char32_t> NextScalar(std::string_view utf8, std::size_t& position);

/// A text of the component from UTF-8, or nothing where it is malformed or holds a character outside the code
/// page; `offender` then tells which scalar it was (0xFFFD for malformed input).
std::optional<Text> FromUtf8(std::string_view utf8, char32_t* offender = nullptr);

} // namespace ostrel

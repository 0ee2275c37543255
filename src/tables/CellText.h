#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "text/Text.h"

namespace ostrel::tables {

/// How the bytes of an input are to be read. `Unknown` is settled by the first bytes outside ASCII.
enum class TextEncoding { Unknown, Utf8, Windows1252 };

/// Which of the two it is, judging by bytes that begin with the first one outside ASCII: UTF-8 where its
/// sequences outnumber what is none.
TextEncoding GuessEncoding(std::string_view bytes);

/// Whether a value is plain text, to be shown literally, or HTML.
enum class Markup { Escape, Html };

/// The special characters of a value, collected while it is scanned. A value without any is its own HTML.
enum CellTrait : std::uint8_t {
    TraitNone = 0,
    TraitMarkup = 1, ///< a character that HTML keeps for itself
    TraitHigh = 2,   ///< a byte outside ASCII
    TraitBreak = 4,  ///< CR or LF
    TraitBlank = 8,  ///< a blank, which HTML swallows at the ends and beside another
};
using CellTraits = std::array<std::uint8_t, 256>;
extern const CellTraits TraitsOfByte;

/// Makes the plain text and the HTML of a value. Characters outside the code page become numeric references
/// in both; line breaks, edge blanks and blanks beside blanks become what shows as such. False where the
/// value is not in its encoding.
bool EncodeCell(std::string_view value, TextEncoding encoding, Markup markup, Text& plain, Text& html);

/// A word from outside, such as an argument or the name of a column, as text of the component, or as HTML
/// that shows it. It is UTF-8, and Windows-1252 where it is not.
Text PlainArgument(std::string_view word);
Text HtmlArgument(std::string_view word);

/// A page from outside as HTML of the component: its bytes are UTF-8 or Windows-1252, whichever they look
/// like, and characters outside the code page become numeric references. Bytes that are no UTF-8 after all
/// are read as Windows-1252.
Text HtmlOfPage(std::string_view bytes);

} // namespace ostrel::tables

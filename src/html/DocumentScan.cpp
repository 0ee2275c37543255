#include "html/DocumentScan.h"

#include <algorithm>

#include "text/CodePage.h"

namespace ostrel::html {

namespace {

constexpr TextView Patterns[] = {"<html", "</html>", "<header", "</header>", "<body", "</body>"};
constexpr std::size_t LongestPattern = 9;
constexpr std::size_t BlockSize = 64;
// A block is judged with the two bytes behind it.
constexpr std::size_t BlockReach = BlockSize + 2;

bool PatternStarts(TextView text) {
    // Tags such as <B> and <BR> come by the million; the next letter settles them.
    const std::size_t name = text.size() > 1 && text[1] == '/' ? 2 : 1;
    if (text.size() < name + 2) return false;
    const char second = static_cast<char>(LowerByte(text[name + 1]));
    if (second != 'o' && second != 't' && second != 'e') return false;
    return std::any_of(std::begin(Patterns), std::end(Patterns),
                       [&](TextView pattern) { return StartsWithText(text, pattern); });
}

/// Whether any byte of the block may start a pattern: a "<" with an "h" or a "b" behind it or behind its "/".
/// It has no branches, so that compilers turn it into a few wide instructions; a page has tens of millions of
/// tags.
bool MayHoldPattern(const char* block) {
    unsigned char any = 0;
    for (std::size_t i = 0; i < BlockSize; ++i) {
        const auto second = static_cast<unsigned char>(block[i + 1] | 0x20);
        const auto third = static_cast<unsigned char>(block[i + 2] | 0x20);
        const auto opens = static_cast<unsigned char>((second == 'h') | (second == 'b'));
        const auto closes = static_cast<unsigned char>((second == '/') & ((third == 'h') | (third == 'b')));
        any = static_cast<unsigned char>(any | ((block[i] == '<') & (opens | closes)));
    }
    return any != 0;
}

bool HoldsPattern(TextView text, std::size_t from, std::size_t to) {
    for (std::size_t at = text.find('<', from); at < to; at = text.find('<', at + 1))
        if (PatternStarts(text.substr(at))) return true;
    return false;
}

bool HoldsPattern(TextView text) {
    std::size_t at = 0;
    for (; at + BlockReach <= text.size(); at += BlockSize)
        if (MayHoldPattern(text.data() + at) && HoldsPattern(text, at, at + BlockSize)) return true;
    return HoldsPattern(text, at, text.size());
}

} // namespace

bool HoldsDocumentTags(const Rope& text) {
    Text border; // the last bytes of what has been seen, where a pattern may begin
    for (const TextView piece : text.Pieces()) {
        if (HoldsPattern(Text(border).append(piece.substr(0, LongestPattern))) || HoldsPattern(piece))
            return true;
        border.append(piece.substr(piece.size() - std::min(piece.size(), LongestPattern)));
        if (border.size() > LongestPattern) border.erase(0, border.size() - LongestPattern);
    }
    return false;
}

} // namespace ostrel::html

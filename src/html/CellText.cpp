#include "html/TableBuilder.h"
#include "services/SpecialCharacters.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

constexpr TextView Break = "<BR>";
constexpr Long SmallestWidth = 11;

constexpr std::size_t LongestEntity = 8;

/// Length of the entity at the start of the text, or 0; `index` tells which it is. `skip` characters of the
/// entities stand in front of the text.
std::size_t EntityLength(TextView text, std::size_t first, std::size_t skip, std::size_t& index) {
    const TextView entity = text.substr(0, text.substr(0, LongestEntity).find(';') + 1);
    const auto specials = services::SpecialCharacters();
    for (index = first; !entity.empty() && index < specials.size(); ++index)
        if (EqualText(specials[index].entity.substr(skip), entity)) return entity.size();
    return 0;
}

/// How many characters of the text stand for its first visible one. Entities are decoded one kind after the
/// other, so the "&" of an "&amp;" may begin an entity of a later kind.
std::size_t VisibleLength(TextView text) {
    if (text[0] != '&') return 1;
    std::size_t index = 0;
    const std::size_t length = EntityLength(text, 0, 0, index);
    if (length == 0) return 1;
    if (services::SpecialCharacters()[index].character != '&') return length;
    return length + EntityLength(text.substr(length), index + 1, 1, index);
}

bool IsWider(TextView text, std::size_t width) {
    if (text.size() <= width) return false;
    std::size_t shown = 0;
    for (std::size_t at = 0; at < text.size(); at += VisibleLength(text.substr(at)))
        if (++shown > width) return true;
    return false;
}

void AppendWrapped(Text& output, TextView segment, std::size_t width, TextView separator) {
    TextView rest = TrimBlanks(segment);
    while (IsWider(rest, width)) {
        const std::size_t blank = rest.rfind(' ', width);
        output.append(rest.substr(0, blank == NotFound ? width : blank)).append(separator);
        rest.remove_prefix(blank == NotFound ? width : blank + 1);
    }
    output.append(rest);
}

} // namespace

bool IsZeroBlank(TextView value, TextView decimalDelimiter) {
    bool delimited = false;
    for (const char c : TrimBlanks(value)) {
        if (TextView(&c, 1) == decimalDelimiter && !delimited)
            delimited = true;
        else if (c != '0')
            return false;
    }
    return true;
}

Text CreateZeroBlank(TextView value, TextView decimalDelimiter) {
    return IsZeroBlank(value, decimalDelimiter) ? Text() : Text(value);
}

Text FormatCell(TextView text, Long width, TextView trail, TextView lead) {
    if (width < SmallestWidth) return Text(text);
    const auto characters = static_cast<std::size_t>(width);
    const Text separator = Text(trail).append(Break).append(lead);
    Text output;
    output.reserve(text.size());
    for (;;) {
        const std::size_t cut = FindText(text, Break);
        if (!output.empty()) output.append(Break);
        // Nothing stands before a break at the very start.
        if (cut != 0) AppendWrapped(output, text.substr(0, cut), characters, separator);
        if (cut == NotFound) return output;
        text.remove_prefix(cut + Break.size());
    }
}

} // namespace ostrel::html

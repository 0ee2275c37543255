#include "services/Colours.h"

#include <cstdint>

#include "text/CodePage.h"

namespace ostrel::services {

namespace {

struct NamedColour {
    TextView name, hex, alias;
};

constexpr NamedColour NamedColours[] = {
    {"aqua", "#00FFFF", "cyan"},       {"black", "#000000", ""},    {"blue", "#0000FF", ""},
    {"fuchsia", "#FF00FF", "magenta"}, {"gray", "#808080", "grey"}, {"green", "#008000", ""},
    {"lime", "#00FF00", ""},           {"maroon", "#800000", ""},   {"navy", "#000080", ""},
    {"olive", "#808000", ""},          {"purple", "#800080", ""},   {"red", "#FF0000", ""},
    {"silver", "#C0C0C0", ""},         {"teal", "#008080", ""},     {"white", "#FFFFFF", ""},
    {"yellow", "#FFFF00", ""},
};

constexpr TextView HexDigits = "0123456789abcdef";

} // namespace

Text ColourActualToHex(Long colour) {
    Text hex = "#";
    auto rest = static_cast<std::uint32_t>(colour);
    for (int part = 0; part < 3; ++part, rest >>= 8) {
        hex += HexDigits[rest >> 4 & 15];
        hex += HexDigits[rest & 15];
    }
    return hex;
}

Text ColourActualToName(Long colour) { return ColourHexToName(ColourActualToHex(colour)); }

Long ColourHexToActual(TextView colour) {
    const Text hex = Lower(TrimBlanks(colour));
    if (hex.size() != 7 || hex[0] != '#') return -1;
    Long actual = 0;
    for (const std::size_t part : {5, 3, 1}) {
        const std::size_t high = HexDigits.find(hex[part]), low = HexDigits.find(hex[part + 1]);
        if (high == NotFound || low == NotFound) return -1;
        actual = actual * 256 + static_cast<Long>(high * 16 + low);
    }
    return actual;
}

Text ColourHexToName(TextView colour) {
    Text hex = Upper(TrimBlanks(colour));
    for (const NamedColour& named : NamedColours)
        if (named.hex == hex) return Text(named.name);
    return hex;
}

Text ColourNameToHex(TextView colour) {
    const Text name = Lower(TrimBlanks(colour));
    if (name.empty()) return {};
    for (const NamedColour& named : NamedColours)
        if (named.name == name || named.alias == name) return Text(named.hex);
    return {};
}

Long ColourNameToActual(TextView colour) {
    const Text hex = ColourNameToHex(colour);
    return ColourHexToActual(hex.empty() ? colour : TextView(hex));
}

} // namespace ostrel::services

#include "services/SpecialCharacters.h"

namespace ostrel::services {

std::span<const SpecialCharacter> SpecialCharacters() {
    // The degree sign is spelled "&def;", which pages written before rely on.
    static constexpr SpecialCharacter table[] = {
        {' ', "&nbsp;"},    {'&', "&amp;"},       {'\xA2', "&cent;"},   {'\xA9', "&copy;"},
        {'\xB0', "&def;"},  {'\xBC', "&frac14;"}, {'\xBD', "&frac12;"}, {'\xBE', "&frac34;"},
        {'>', "&gt;"},      {'<', "&lt;"},        {'\xB5', "&micro;"},  {'\xB7', "&middot;"},
        {'\xB6', "&para;"}, {'\xB1', "&plusmn;"}, {'\xA3', "&pound;"},  {'"', "&quot;"},
        {'\xAE', "&reg;"},  {'\xA7', "&sect;"},   {'\x80', "&euro;"},   {'\xA5', "&yen;"},
    };
    return table;
}

} // namespace ostrel::services

#pragma once

#include <array>

#include "text/Text.h"

namespace ostrel {

/// Fonts of the parts of a page, by `OWHFontType`, 0 to 10.
struct PageFonts {
    static constexpr Long Last = 10;
    struct Entry {
        Text colour, face, size;
        Flag bold, italic;
        bool Plain() const { return colour.empty() && face.empty() && size.empty(); }
    };
    std::array<Entry, Last + 1> entries;

    Entry* Find(Long type) {
        return type >= 0 && type <= Last ? &entries[static_cast<std::size_t>(type)] : nullptr;
    }
    const Entry* Find(Long type) const {
        return type >= 0 && type <= Last ? &entries[static_cast<std::size_t>(type)] : nullptr;
    }
    void Clear() { entries = {}; }
};

} // namespace ostrel

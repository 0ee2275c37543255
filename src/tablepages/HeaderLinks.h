#pragma once

#include <array>

#include "text/Array.h"

namespace ostrel {

/// Links around the header of a table, their formats and the names of the record pages' navigation.
struct HeaderLinks {
    static constexpr Long MaxLinks = 100;
    static constexpr Long MaxFormats = 50;

    struct Link {
        Text name, link, toolTip;
        Flag right = true;
        Long row = 1;
        Long positions = 0; ///< bits 1, 2, 4 and 8 of the four positions
    };
    struct Format {
        Long row = 0, position = 0;
        Text size;
        Flag bold, italic;
        Text noLinkColour = "GRAY";
        Flag centreAll;
    };

    Array<Link> links;
    Array<Format> formats;
    std::array<Flag, 4> show{}; ///< above, below, above the repeated header, below it
    Text firstName, previousName, nextName, lastName, allName;
};

} // namespace ostrel

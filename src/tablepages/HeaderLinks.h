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

    /// False with a sentence at the 101st link. `link.positions` is masked; none of the four means all.
    bool Add(Link link, Text& error);
    /// False at the 51st format.
    bool AddFormat(Format format);
    /// Drops links and formats; links show below the top header and above the repeated one.
    void Clear();
    /// The highest row of any link, at least 1; 0 without links.
    Long MaxRow() const;
};

} // namespace ostrel

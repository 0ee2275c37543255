#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel::help {

/// One line of the index.
struct IndexEntry {
    Text hyperlink; ///< empty for plain text
    Text name;
    Flag indent;    ///< belongs below the entry before it
    Text extra;     ///< the name of an anchor in front; empty for none
    Text character; ///< its first letter is that of the entry's section; empty for the name's own
};

/// The entries of the index, in the order in which they are shown, which is that of adding.
struct IndexStore {
    std::vector<IndexEntry> entries;

    void Add(IndexEntry entry) { entries.push_back(std::move(entry)); }
    /// Gives the memory back as well.
    void Clear() { *this = {}; }
};

} // namespace ostrel::help

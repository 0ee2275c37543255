#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "help/SearchPage.h"

namespace ostrel::help {

/// The help pages that a search looks into, in the order of their files.
struct SearchPages {
    Text directory; ///< with a backslash at its end
    std::vector<SearchPage> pages;
    /// The place of each page among the titles, as `TitlePlaces` gives them.
    std::vector<std::uint32_t> titlePlaces;
    /// How many pages were left empty because they, or all before them, take too much memory.
    Long tooLarge = 0;
};

/// The loaded help pages of a control. They live until they are cleared, loaded anew, or a search that began
/// before has come to its end.
struct SearchStore {
    std::shared_ptr<SearchPages> pages = std::make_shared<SearchPages>();
    Flag loaded;

    void Clear() { *this = {}; }
};

} // namespace ostrel::help

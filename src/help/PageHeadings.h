#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel::help {

/// A heading of a page.
struct PageHeading {
    Long level = 0; ///< 1 to 6
    Text anchor;    ///< the name by which a link reaches it, or empty
    Text text;      ///< HTML without tags
};

/// Returns the headings of a page down to a level, in their order. The anchor of a heading is its own `ID`,
/// that of an element in it, or that of an element that begins right before it. Linear; a heading of more
/// than a few thousand characters is passed over.
std::vector<PageHeading> PageHeadings(TextView html, Long lowestLevel);

} // namespace ostrel::help

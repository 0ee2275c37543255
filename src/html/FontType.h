#pragma once

namespace ostrel {

/// The part of a page that a font is for.
enum OWHFontType {
    owhFontBody = 0,
    owhFontTitle = 1,
    owhFontSubTitle = 2,
    owhFontHeader = 3,
    owhFontFooter = 4,
    owhFontTable = 5,
    owhFontTableHeader = 6
};

} // namespace ostrel

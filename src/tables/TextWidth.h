#pragma once

#include "text/Text.h"

namespace ostrel::tables {

/// How wide a text is in a proportional sans-serif font, in widths of the digit 0 (the unit `ch` of style
/// sheets). An estimate: fonts differ by a few percent.
struct TextWidth {
    double line = 0; ///< of the longest line
    double word = 0; ///< of the longest piece that a browser does not break
};

/// Measures HTML without its tags; a reference such as "&amp;" is one character, and <BR> ends a line.
TextWidth MeasureHtml(TextView html);

} // namespace ostrel::tables

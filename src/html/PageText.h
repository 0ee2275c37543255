#pragma once

#include "html/FontType.h"
#include "html/PageScope.h"

namespace ostrel::html {

// Texts in the fonts of the parts of a page. A font type is an `OWHFontType`; any other number has no font.

Text PageFontStartTag(const PageScope& scope, Long fontType);
Text PageFontEndTag(const PageScope& scope, Long fontType);
/// A paragraph in that font; empty for an empty text.
Text PageTextBlock(const PageScope& scope, TextView text, Long fontType);
/// The title at the head of a page. Sets `HelpTitle` as well.
Text PageTitleBlock(const PageScope& scope, TextView title);

} // namespace ostrel::html

#include "html/Elements.h"
#include "html/PageParts.h"
#include "text/Enumerations.h"

namespace ostrel::html {

namespace {

/// The entry that gives the font tag of a part of the page, or null where it has none. The header of a table
/// falls back to the table.
const PageFonts::Entry* FontEntry(const PageFonts& fonts, Long fontType) {
    const PageFonts::Entry* entry = fonts.Find(fontType);
    if (entry && entry->Plain() && fontType == owhFontTableHeader) entry = fonts.Find(owhFontTable);
    return entry && !entry->Plain() ? entry : nullptr;
}

} // namespace

Text PageFontStartTag(const PageScope& scope, Long fontType) {
    const PageProperties& page = scope.page;
    Text result;
    if (const PageFonts::Entry* font = FontEntry(scope.fonts, fontType))
        result = CreateFontStart(font->face.empty() ? page.PageFontFace : font->face,
                                 font->size.empty() ? page.PageFontSize : font->size,
                                 font->colour.empty() ? page.PageFontColour : font->colour);
    if (const PageFonts::Entry* own = scope.fonts.Find(fontType)) {
        if (own->bold) result.append("<B>");
        if (own->italic) result.append("<I>");
    }
    return result;
}

Text PageFontEndTag(const PageScope& scope, Long fontType) {
    Text result;
    if (const PageFonts::Entry* own = scope.fonts.Find(fontType)) {
        // In the order of the start tags: pages have always been closed so.
        if (own->bold) result.append("</B>");
        if (own->italic) result.append("</I>");
    }
    if (FontEntry(scope.fonts, fontType)) result.append("</FONT>");
    return result;
}

Text PageTextBlock(const PageScope& scope, TextView text, Long fontType) {
    if (text.empty()) return {};
    return PageFontStartTag(scope, fontType) + CreateParagraph(text, false) + PageFontEndTag(scope, fontType);
}

} // namespace ostrel::html

#include "html/PageText.h"

#include "html/Elements.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

/// The entry that gives the font tag of a part of the page, or null where it has none. The header of a table
/// falls back to the table.
const PageFonts::Entry* FontEntry(const PageFonts& fonts, Long fontType) {
    const PageFonts::Entry* entry = fonts.Find(fontType);
    if (entry && entry->Plain() && fontType == owhFontTableHeader) entry = fonts.Find(owhFontTable);
    return entry && !entry->Plain() ? entry : nullptr;
}

/// Each run of line ends as one " - ".
Text OnOneLine(TextView text) {
    Text result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t end = text.find(LineEnd);
        result.append(text.substr(0, end));
        if (end == NotFound) break;
        text.remove_prefix(end);
        while (text.starts_with(LineEnd)) text.remove_prefix(LineEnd.size());
        result.append(" - ");
    }
    return result;
}

} // namespace

Text PageFontStartTag(const PageScope& scope, Long fontType) {
    const PageProperties& settings = scope.settings;
    Text result;
    if (const PageFonts::Entry* font = FontEntry(scope.fonts, fontType))
        result = CreateFontStart(font->face.empty() ? settings.PageFontFace : font->face,
                                 font->size.empty() ? settings.PageFontSize : font->size,
                                 font->colour.empty() ? settings.PageFontColour : font->colour);
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

Text PageTitleBlock(const PageScope& scope, TextView title) {
    const Text shown(TrimBlanks(title).empty() ? TextView(scope.settings.PageTitle) : title);
    if (shown.empty()) return {};
    scope.draft.HelpTitle = OnOneLine(services::StripTags(shown));
    return PageTextBlock(scope, shown, owhFontTitle);
}

} // namespace ostrel::html

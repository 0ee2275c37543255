#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "html/PageDocument.h"
#include "html/PageDraft.h"
#include "html/PageSave.h"
#include "html/SimplePages.h"
#include "tablepages/TableReset.h"

namespace ostrel {

Text OstrelWebHelp::CreatePage(const Text& Body) {
    return parts_->guard([&] { return html::CreatePage(parts_->PageScope(), Rope(Body)).ToText(); });
}

Text OstrelWebHelp::CurrentCreatePage() {
    return parts_->guard([&] { return parts_->state.pageSettings.CurrentCreatePage; });
}

void OstrelWebHelp::HelpPageInitialise() {
    parts_->guard([&] { html::HelpPageInitialise(parts_->state.draft); });
}

Flag OstrelWebHelp::HelpPageSaveInternal(const Text& FilePath, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        const html::PageSaved saved = html::SavePage(parts_->PageScope(), FilePath);
        ErrorMessage = saved.error;
        return saved.built;
    });
}

Text OstrelWebHelp::InternalBuild(const Text& Part1, const Text& Part2, const Text& Part3) {
    return parts_->guard([&] {
        return html::InternalBuild(parts_->PageScope(), Rope(Part1), Rope(Part2), Rope(Part3)).ToText();
    });
}

Text OstrelWebHelp::PageBody() {
    return parts_->guard([&] { return parts_->state.pageSettings.PageBody.ToText(); });
}

Flag OstrelWebHelp::PageCreateList(const Text& FilePath, const Text& Title, Long NumberList,
                                   const Text& ListHeader, const Text& ListFooter, const Array<Text>& List,
                                   Text& ErrorMessage, Flag OrderedList, Flag Space) {
    return parts_->guard([&]() -> Flag {
        const html::ListContent list{NumberList, ListHeader, ListFooter, List, OrderedList, Space};
        return html::PageCreateList(parts_->PageScope(), FilePath, Title, list, ErrorMessage);
    });
}

Flag OstrelWebHelp::PageCreateSimple(const Text& FilePath, const Text& Title, const Text& Body,
                                     Text& ErrorMessage, Flag Centre) {
    return parts_->guard([&]() -> Flag {
        return html::PageCreateSimple(parts_->PageScope(), FilePath, Title, Body, ErrorMessage, Centre);
    });
}

Flag OstrelWebHelp::PageCreateSimpleBoxed(const Text& FilePath, const Text& Page, const Text& PageWidth,
                                          Text& ErrorMessage, Long BoxWidth, const Text& BoxColour) {
    return PageCreateSimpleBoxed2(FilePath, {}, Page, PageWidth, false, {}, ErrorMessage, BoxWidth,
                                  BoxColour);
}

Flag OstrelWebHelp::PageCreateSimpleBoxed2(const Text& FilePath, const Text& Title, const Text& Body,
                                           const Text& PageWidth, Flag PageCentre, const Text& PageColour,
                                           Text& ErrorMessage, Long BoxWidth, const Text& BoxColour) {
    return parts_->guard([&]() -> Flag {
        const html::Box box{PageWidth, PageColour, BoxColour, PageCentre, BoxWidth};
        return html::PageCreateSimpleBoxed2(parts_->PageScope(), FilePath, Title, Body, box, ErrorMessage);
    });
}

// The fonts are set without an announcement: they are not kept in the bag. An index outside sets nothing.

void OstrelWebHelp::PageFontBoldSet(Long FontType, Flag Bold) {
    parts_->guard([&] {
        if (PageFonts::Entry* entry = parts_->state.fonts.Find(FontType)) entry->bold = Bold;
    });
}

void OstrelWebHelp::PageFontColourSet(Long FontType, const Text& Colour) {
    parts_->guard([&] {
        if (PageFonts::Entry* entry = parts_->state.fonts.Find(FontType)) entry->colour = Colour;
    });
}

void OstrelWebHelp::PageFontFaceSet(Long FontType, const Text& Name) {
    parts_->guard([&] {
        if (PageFonts::Entry* entry = parts_->state.fonts.Find(FontType)) entry->face = Name;
    });
}

void OstrelWebHelp::PageFontItalicSet(Long FontType, Flag Italic) {
    parts_->guard([&] {
        if (PageFonts::Entry* entry = parts_->state.fonts.Find(FontType)) entry->italic = Italic;
    });
}

void OstrelWebHelp::PageFontSizeSet(Long FontType, const Text& Size) {
    parts_->guard([&] {
        if (PageFonts::Entry* entry = parts_->state.fonts.Find(FontType)) entry->size = Size;
    });
}

void OstrelWebHelp::PageInitialise() {
    parts_->guard([&] { html::PageInitialise(parts_->PageScope()); });
}

void OstrelWebHelp::PageReset() {
    parts_->guard([&] {
        html::ResetPage(parts_->state.pageSettings, parts_->state.fonts);
        tablepages::ResetTable(parts_->state.table, parts_->state.headerLinks);
    });
}

} // namespace ostrel

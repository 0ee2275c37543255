#include "control/Guard.h"
#include "control/PageScopeOf.h"
#include "html/PageDocument.h"
#include "html/PageDraft.h"
#include "html/PageSave.h"
#include "html/SimplePages.h"
#include "tablepages/TableReset.h"

namespace ostrel {

Text OstrelWebHelp::CreatePage(const Text& Body) {
    return Guarded([&] { return html::CreatePage(PageScopeOf(context_, state_), Rope(Body)).ToText(); });
}

Text OstrelWebHelp::CurrentCreatePage() {
    return Guarded([&] { return state_.page.CurrentCreatePage; });
}

void OstrelWebHelp::HelpPageInitialise() {
    Guarded([&] { html::HelpPageInitialise(state_.help); });
}

Flag OstrelWebHelp::HelpPageSaveInternal(const Text& FilePath, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        const html::PageSaved saved = html::SavePage(PageScopeOf(context_, state_), FilePath);
        ErrorMessage = saved.error;
        return saved.built;
    });
}

Text OstrelWebHelp::InternalBuild(const Text& Part1, const Text& Part2, const Text& Part3) {
    return Guarded([&] {
        return html::InternalBuild(PageScopeOf(context_, state_), Rope(Part1), Rope(Part2), Rope(Part3))
            .ToText();
    });
}

Text OstrelWebHelp::PageBody() {
    return Guarded([&] { return state_.page.PageBody.ToText(); });
}

Flag OstrelWebHelp::PageCreateList(const Text& FilePath, const Text& Title, Long NumberList,
                                   const Text& ListHeader, const Text& ListFooter, const Array<Text>& List,
                                   Text& ErrorMessage, Flag OrderedList, Flag Space) {
    return Guarded([&]() -> Flag {
        const html::ListContent list{NumberList, ListHeader, ListFooter, List, OrderedList, Space};
        return html::PageCreateList(PageScopeOf(context_, state_), FilePath, Title, list, ErrorMessage);
    });
}

Flag OstrelWebHelp::PageCreateSimple(const Text& FilePath, const Text& Title, const Text& Body,
                                     Text& ErrorMessage, Flag Centre) {
    return Guarded([&]() -> Flag {
        return html::PageCreateSimple(PageScopeOf(context_, state_), FilePath, Title, Body, ErrorMessage,
                                      Centre);
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
    return Guarded([&]() -> Flag {
        const html::Box box{PageWidth, PageColour, BoxColour, PageCentre, BoxWidth};
        return html::PageCreateSimpleBoxed2(PageScopeOf(context_, state_), FilePath, Title, Body, box,
                                            ErrorMessage);
    });
}

// The fonts are set without an announcement: they are not kept in the bag. An index outside sets nothing.

void OstrelWebHelp::PageFontBoldSet(Long FontType, Flag Bold) {
    Guarded([&] {
        if (PageFonts::Entry* entry = state_.fonts.Find(FontType)) entry->bold = Bold;
    });
}

void OstrelWebHelp::PageFontColourSet(Long FontType, const Text& Colour) {
    Guarded([&] {
        if (PageFonts::Entry* entry = state_.fonts.Find(FontType)) entry->colour = Colour;
    });
}

void OstrelWebHelp::PageFontFaceSet(Long FontType, const Text& Name) {
    Guarded([&] {
        if (PageFonts::Entry* entry = state_.fonts.Find(FontType)) entry->face = Name;
    });
}

void OstrelWebHelp::PageFontItalicSet(Long FontType, Flag Italic) {
    Guarded([&] {
        if (PageFonts::Entry* entry = state_.fonts.Find(FontType)) entry->italic = Italic;
    });
}

void OstrelWebHelp::PageFontSizeSet(Long FontType, const Text& Size) {
    Guarded([&] {
        if (PageFonts::Entry* entry = state_.fonts.Find(FontType)) entry->size = Size;
    });
}

void OstrelWebHelp::PageInitialise() {
    Guarded([&] { html::PageInitialise(PageScopeOf(context_, state_)); });
}

void OstrelWebHelp::PageReset() {
    Guarded([&] {
        html::ResetPage(state_.page, state_.fonts);
        tablepages::ResetTable(state_.table, state_.headerLinks);
    });
}

} // namespace ostrel

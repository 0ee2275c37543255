#include "html/PageDraft.h"

namespace ostrel::html {

void HelpPageInitialise(HelpProperties& draft) {
    for (Text* text : {&draft.HelpAuthor, &draft.HelpBackground, &draft.HelpBackgroundColour,
                       &draft.HelpCompany, &draft.HelpDescription, &draft.HelpFont, &draft.HelpKeywords,
                       &draft.HelpLinkColour, &draft.HelpLinkActiveColour, &draft.HelpLinkVisibleColour,
                       &draft.HelpMeta, &draft.HelpRefreshURL, &draft.HelpRobots, &draft.HelpTitle})
        text->clear();
    for (Rope* part : {&draft.HelpPart1, &draft.HelpPart2, &draft.HelpPart3}) part->Clear();
    draft.HelpRefresh = 0;
}

void PageInitialise(const PageScope& scope) {
    const PageProperties& settings = scope.settings;
    HelpProperties& draft = scope.draft;
    HelpPageInitialise(draft);
    draft.HelpAuthor = settings.PageAuthor;
    draft.HelpBackground = settings.PageBackground;
    draft.HelpBackgroundColour = settings.PageBackgroundColour;
    draft.HelpCompany = settings.PageCompany;
    draft.HelpDescription = settings.PageDescription;
    draft.HelpFont = settings.PageFont;
    draft.HelpKeywords = settings.PageKeywords;
    draft.HelpLinkActiveColour = settings.PageLinkActiveColour;
    draft.HelpLinkColour = settings.PageLinkColour;
    draft.HelpLinkVisibleColour = settings.PageLinkVisibleColour;
    draft.HelpMeta = settings.PageMeta;
    draft.HelpPageWidth = settings.PagePageWidth;
    draft.HelpRefresh = settings.PageRefresh;
    draft.HelpRefreshURL = settings.PageRefreshURL;
    draft.HelpRefreshTarget = settings.PageRefreshURL;
    draft.HelpRobots = settings.PageRobots;
    draft.HelpTitle = settings.PageTitle;
    scope.settings.PageBody.Clear();
}

void ResetPage(PageProperties& settings, PageFonts& fonts) {
#define PROPERTY(kind, name, fallback, flags, doc) settings.name = kind{fallback};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc)
#include "html/PageProperties.def"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
    settings.PageBody.Clear();
    fonts.Clear();
}

} // namespace ostrel::html

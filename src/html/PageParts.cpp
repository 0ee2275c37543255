#include "html/PageParts.h"

#include "html/Elements.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/Enumerations.h"

namespace ostrel::html {

namespace {

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

void HelpPageInitialise(HelpProperties& help) {
    for (Text* text : {&help.HelpAuthor, &help.HelpBackground, &help.HelpBackgroundColour, &help.HelpCompany,
                       &help.HelpDescription, &help.HelpFont, &help.HelpKeywords, &help.HelpLinkColour,
                       &help.HelpLinkActiveColour, &help.HelpLinkVisibleColour, &help.HelpMeta,
                       &help.HelpRefreshURL, &help.HelpRobots, &help.HelpTitle})
        text->clear();
    for (Rope* part : {&help.HelpPart1, &help.HelpPart2, &help.HelpPart3}) part->Clear();
    help.HelpRefresh = 0;
}

void PageInitialise(const PageScope& scope) {
    PageProperties& page = scope.page;
    HelpProperties& help = scope.help;
    HelpPageInitialise(help);
    help.HelpAuthor = page.PageAuthor;
    help.HelpBackground = page.PageBackground;
    help.HelpBackgroundColour = page.PageBackgroundColour;
    help.HelpCompany = page.PageCompany;
    help.HelpDescription = page.PageDescription;
    help.HelpFont = page.PageFont;
    help.HelpKeywords = page.PageKeywords;
    help.HelpLinkActiveColour = page.PageLinkActiveColour;
    help.HelpLinkColour = page.PageLinkColour;
    help.HelpLinkVisibleColour = page.PageLinkVisibleColour;
    help.HelpMeta = page.PageMeta;
    help.HelpPageWidth = page.PagePageWidth;
    help.HelpRefresh = page.PageRefresh;
    help.HelpRefreshURL = page.PageRefreshURL;
    help.HelpRefreshTarget = page.PageRefreshURL;
    help.HelpRobots = page.PageRobots;
    help.HelpTitle = page.PageTitle;
    page.PageBody.Clear();
}

void ResetPage(PageProperties& page, PageFonts& fonts) {
    page.SetDefaults();
    page.PageBody.Clear();
    fonts.Clear();
}

Text PageTitleBlock(const PageScope& scope, TextView title) {
    const Text shown(TrimBlanks(title).empty() ? TextView(scope.page.PageTitle) : title);
    if (shown.empty()) return {};
    scope.help.HelpTitle = OnOneLine(services::StripTags(shown));
    return PageTextBlock(scope, shown, owhFontTitle);
}

bool PageFilePath(const PageScope& scope, const Text& filePath, Text& fullPath, Text& error) {
    constexpr TextView setting = "Property [DirectoryHelp]";
    const Text& directory = scope.service.DirectoryHelp;
    fullPath.clear();
    if (filePath.empty())
        error = services::ErrorMessageNotDefined("File Path");
    else if (filePath.find('\\') != NotFound)
        fullPath = filePath;
    else if (directory.empty())
        error = services::ErrorMessageNotDefined(setting);
    else if (!services::DirectoryExists(*scope.context.platform.files, directory))
        error = services::ErrorMessageDoesNotExist(setting, directory);
    else
        fullPath = services::AddMissingBackslash(directory) + filePath;
    return !fullPath.empty();
}

} // namespace ostrel::html

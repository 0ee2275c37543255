#include "help/SearchResults.h"

#include "help/PageFiles.h"
#include "html/Elements.h"
#include "html/PageDocument.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::help {

namespace {

/// Keeps robots away from the pages made while it lives.
class NotForRobots {
public:
    explicit NotForRobots(Text& robots) : robots_(robots), kept_(robots) { robots_ = "NoIndex"; }
    ~NotForRobots() { robots_ = std::move(kept_); }
    NotForRobots(const NotForRobots&) = delete;
    NotForRobots& operator=(const NotForRobots&) = delete;

private:
    Text& robots_;
    Text kept_;
};

void AppendPart(Text& body, TextView part) {
    part = TrimCrLfView(part);
    if (!part.empty()) body.append(part).append(LineGap);
}

} // namespace

Text ResultsHTML(const html::PageScope& scope, const SearchPages& pages, const SearchTerms& terms,
                 const Ranking& ranking) {
    Text html = "<P>Searching for &quot;<B>" + terms.phrase + "</B>&quot;</P>\r\n\r\n";
    if (ranking.matching == 0) return html.append("<P>No Matches found in <B>Help Pages</B>.</P>");

    html.append("<P><UL>\r\n\r\n");
    std::int64_t score = 0;
    Text link, percentage;
    for (const RankedPage& ranked : ranking.best) {
        // Pages of one score are neighbours.
        if (ranked.score != score) {
            score = ranked.score;
            percentage = FormatNumber(ranking.Percentage(score), "####0.0");
        }
        const SearchPage& page = pages.pages[ranked.page];
        link.clear();
        html::AppendLinkTitle(scope, link, page.FileName(), page.Title(), {}, true, false, false);
        html.append(html::CreateListItem(link, true)).append(" - ");
        html.append(percentage).append("&nbsp;%\r\n\r\n");
    }
    html.append("</UL></P>");
    if (const std::size_t others = ranking.matching - ranking.best.size(); others > 0) {
        html.append("\r\n\r\n<P><B>");
        AppendLong(html, static_cast<long long>(others));
        html.append("</B> other matches were also found.</P>");
    }
    return html;
}

bool SearchResultsCreate(const SearchScope& scope, const Text& phrase, bool matchCase, bool wholeWords,
                         Text& error) {
    error.clear();
    // A search that goes on keeps its pages, also where the store is cleared during a yield.
    const std::shared_ptr<SearchPages> pages = scope.store.pages;
    if (pages->pages.empty())
        error = "No Help Pages have been loaded to search.";
    else if (phrase.empty())
        error = "No Search String has been entered.";
    if (!error.empty()) return false;

    const SearchTerms terms = TermsOf(scope.search, phrase, matchCase, wholeWords);
    const StopPanelShown panel(scope.page.context.stopPanel, "Searching Help Pages");
    const auto ranking = SearchAllPages(scope.page.context, *pages, terms);
    if (!ranking) {
        error = "Loading of Help Pages Interrupted.";
        return false;
    }
    scope.search.SearchResults = ResultsHTML(scope.page, *pages, terms, *ranking);
    return true;
}

bool SearchDisplay(const SearchScope& scope, Text& page, Text& error) {
    error.clear();
    if (scope.search.SearchResults.empty()) {
        error = services::ErrorMessageNotDefined("Property [SearchResults]");
        return false;
    }
    Context& context = scope.page.context;
    if (!CheckHelpDirectory(*context.platform.files, scope.service.DirectoryHelp, error)) return false;

    Rope document;
    {
        const NotForRobots unindexed(scope.page.draft.HelpRobots);
        Text body;
        AppendPart(body, scope.search.SearchPart1);
        AppendPart(body, scope.search.SearchResults);
        AppendPart(body, scope.search.SearchPart3);
        document = html::CreatePage(scope.page, Rope(std::move(body)));
        page = services::WorkFilePath(scope.service, scope.service.WorkFileNext);
    }
    services::WorkFileNextIncrement(scope.service);
    Text fileError;
    if (!services::WriteFileFull(context, page, document, fileError, {}))
        error = "Help Page can't be saved - " + fileError;
    return true;
}

} // namespace ostrel::help

#include "help/SearchRun.h"

#include <algorithm>

#include "help/SearchRequest.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::help {

namespace {

/// One phrase, looked for in one page after the other.
class PageMatcher {
public:
    explicit PageMatcher(const SearchTerms& terms)
        : terms_(terms), phrase_(terms.phrase, terms.matchCase, terms.wholeWords),
          wholeTitle_(services::NormaliseSearchText(terms.phrase)) {}

    PageMatches In(SearchPage& page) const {
        PageMatches found;
        const TextView title = page.TitleToSearch().Normalised();
        found.titleIsPhrase = terms_.matchCase ? title == wholeTitle_ : EqualText(title, wholeTitle_);
        if (phrase_.Empty()) return found;
        if (terms_.inTitle) found.inTitle = phrase_.CountIn(page.TitleToSearch());
        if (terms_.inBody)
            found.inText = phrase_.CountIn(page.BodyToSearch(terms_.withoutTags));
        else if (terms_.inHead)
            found.inText = phrase_.CountIn(page.HeadToSearch());
        return found;
    }

private:
    const SearchTerms& terms_;
    services::SearchPhrase phrase_;
    Text wholeTitle_;
};

} // namespace

SearchTerms TermsOf(const SearchProperties& search, const Text& phrase, bool matchCase, bool wholeWords) {
    return {.phrase = phrase,
            .matchCase = matchCase,
            .wholeWords = wholeWords,
            .inTitle = search.SearchTitle,
            .inHead = search.SearchHeader,
            .inBody = search.SearchBody,
            .withoutTags = search.SearchRemoveHTML,
            .mostPages = static_cast<std::size_t>(std::max<Long>(ResultLines(search), 0))};
}

std::optional<Ranking> SearchAllPages(const Context& context, SearchPages& pages, const SearchTerms& terms) {
    const PageMatcher matcher(terms);
    std::vector<PageMatches> found;
    found.reserve(pages.pages.size());
    context.stopPanel.ResetGauge();
    for (SearchPage& page : pages.pages) {
        found.push_back(matcher.In(page));
        context.stopPanel.ShowGauge(static_cast<Single>(found.size()) /
                                    static_cast<Single>(pages.pages.size()));
        context.GiveWay();
        if (context.run.Pressed()) return std::nullopt;
    }
    return RankPages(found, pages.titlePlaces, terms.mostPages);
}

} // namespace ostrel::help

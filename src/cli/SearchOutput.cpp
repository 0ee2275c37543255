#include "cli/SearchOutput.h"

#include <unistd.h>

#include <cstdlib>
#include <ostream>

#include "bridge/JsonText.h"
#include "cli/HelpPageFile.h"
#include "cli/HtmlText.h"
#include "help/SearchResults.h"
#include "tables/CountText.h"
#include "text/CodePage.h"
#include "text/NumberText.h"
#include "text/TextSearch.h"

namespace ostrel::cli {

namespace {

/// Most characters of text shown in front of a place and behind it.
constexpr std::size_t MostBefore = 40, MostBehind = 60;

/// The text around the first place in a page, in three pieces; nothing where only the title matches.
struct Surroundings {
    std::string before, place, behind;
};

Surroundings AroundFirst(help::SearchPage& page, const help::SearchTerms& terms) {
    if (!terms.inBody && !terms.inHead) return {};
    const services::SearchText& searched =
        terms.inBody ? page.BodyToSearch(terms.withoutTags) : page.HeadToSearch();
    const TextView text = searched.Spaced();
    const Text phrase = terms.wholeWords ? " " + Text(TrimBlanks(terms.phrase)) + " " : terms.phrase;
    std::size_t at = terms.matchCase ? FindExact(text, phrase) : FindText(text, phrase);
    if (at == NotFound) return {};
    std::size_t end = at + phrase.size();
    if (terms.wholeWords) {
        ++at;
        --end;
    }
    std::size_t first = at > MostBefore ? text.find(' ', at - MostBefore) : 0;
    if (first > at) first = at;
    std::size_t last = end + MostBehind < text.size() ? text.rfind(' ', end + MostBehind) : text.size();
    if (last == TextView::npos || last < end) last = std::min(end + MostBehind, text.size());
    const TextView before = text.substr(first, at - first), behind = text.substr(end, last - end);
    const bool whole = TrimBlanks(text.substr(last)).empty();
    return {(TrimBlanks(text.substr(0, first)).empty() ? "" : "…") +
                PlainText(first == 0 ? TrimLeft(before) : before),
            PlainText(text.substr(at, end - at)), PlainText(TrimRight(behind)) + (whole ? "" : " …")};
}

bool MarksPlaces() {
    const char* const terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) && !std::getenv("NO_COLOR") && terminal &&
           std::string_view(terminal) != "dumb";
}

std::string TitleOf(const help::SearchPage& page, const std::string& path) {
    std::string title = PlainText(TrimBlanks(page.TitleToSearch().Normalised()));
    return title.empty() ? path.substr(path.rfind('/') + 1) : title;
}

} // namespace

void PrintList(DirectorySearch& search, std::ostream& output) {
    const help::Ranking& results = search.Results();
    const bool marks = MarksPlaces();
    for (const help::RankedPage& ranked : results.best) {
        help::SearchPage& page = search.Pages().pages[ranked.page];
        const std::string path = search.Path(ranked.page);
        const Text percentage = FormatNumber(results.Percentage(ranked.score), "####0.0");
        output << std::string(percentage.size() < 5 ? 5 - percentage.size() : 0, ' ') << percentage << " %  "
               << TitleOf(page, path) << "  " << path << '\n';
        if (!search.Options().show) continue;
        const Surroundings around = AroundFirst(page, search.Terms());
        if (around.place.empty()) continue;
        output << "         " << around.before << (marks ? "\033[1;31m" : "") << around.place
               << (marks ? "\033[0m" : "") << around.behind << '\n';
    }
    if (const std::size_t others = results.matching - results.best.size(); others > 0)
        output << tables::Counted(others, "more page") << (others == 1 ? " matches." : " match.") << '\n';
}

void PrintJson(DirectorySearch& search, std::ostream& output) {
    const help::Ranking& results = search.Results();
    std::string json;
    bridge::JsonWriter writer(json);
    writer.BeginObject();
    writer.Key("phrase");
    writer.Utf8(PlainText(search.Terms().phrase));
    writer.Key("pages");
    writer.Whole(static_cast<long long>(search.Pages().pages.size()));
    writer.Key("matching");
    writer.Whole(static_cast<long long>(results.matching));
    writer.Key("results");
    writer.BeginArray();
    for (const help::RankedPage& ranked : results.best) {
        help::SearchPage& page = search.Pages().pages[ranked.page];
        const std::string path = search.Path(ranked.page);
        writer.BeginObject();
        writer.Key("percentage");
        writer.Number(results.Percentage(ranked.score));
        writer.Key("title");
        writer.Utf8(TitleOf(page, path));
        writer.Key("file");
        writer.Utf8(path);
        if (search.Options().show) {
            const Surroundings around = AroundFirst(page, search.Terms());
            writer.Key("text");
            writer.Utf8(around.before + around.place + around.behind);
        }
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
    output << json << '\n';
}

void WriteResultsPage(DirectorySearch& search) {
    HelpPageFile page(search.Options().page, "search", search.Options().overwrite);
    Events events;
    Platform platform;
    RunFlags run;
    Context context{events, platform, run};
    HelpProperties draft;
    PageProperties settings;
    PageFonts fonts;
    const ServiceProperties service;
    const html::PageScope scope{context, draft, settings, fonts, service};
    page.Write("Search Results", help::ResultsHTML(scope, search.Pages(), search.Terms(), search.Results()));
}

} // namespace ostrel::cli

#include "cli/DirectorySearch.h"

#include "cli/Interrupt.h"
#include "cli/ProgressLine.h"
#include "cli/StopClock.h"
#include "platform/native/NativePlatform.h"
#include "tables/CellText.h"
#include "tables/CountText.h"
#include "tables/InputError.h"
#include "text/TextSearch.h"

namespace ostrel::cli {

namespace {

help::SearchTerms TermsOf(const SearchOptions& options) {
    const bool none = !options.title && !options.header && !options.body;
    // Pages spell these characters as entities.
    Text phrase = ReplaceAll(options.phrase, "&", "&amp;");
    phrase = ReplaceAll(ReplaceAll(phrase, "<", "&lt;"), ">", "&gt;");
    phrase = tables::HtmlOfPage(phrase);
    return {.phrase = std::move(phrase),
            .matchCase = options.matchCase,
            .wholeWords = options.wholeWords,
            .inTitle = options.title || none,
            .inHead = options.header,
            .inBody = options.body || none,
            .withoutTags = !options.tags,
            .mostPages = static_cast<std::size_t>(options.lines)};
}

} // namespace

DirectorySearch::DirectorySearch(const SearchOptions& options)
    : options_(options), directory_(options.directory), terms_(TermsOf(options)) {
    if (options.phrase.empty()) throw tables::InputError("The phrase to search for is empty.");
}

void DirectorySearch::Run() {
    const std::vector<std::string>& names = directory_.Names();
    pages_.pages.reserve(names.size());
    ProgressLine progress(!options_.json);
    directory_.Read([&](std::size_t place, Text html) {
        progress.Show("Loading " + tables::Grouped(place + 1) + " of " +
                      tables::Counted(names.size(), "page"));
        // Only a page of results needs links.
        help::SearchPage& page =
            pages_.pages.emplace_back(options_.page.empty() ? Text() : LinkTo(Path(place), options_.page));
        if (!html.empty()) page.Read(html, true);
    });
    pages_.titlePlaces = help::TitlePlaces(pages_.pages);

    Events events;
    Platform platform;
    RunFlags run;
    platform.clock = std::make_unique<StopClock>(MakeNativeClock(), [&run] { run.HostStop = true; });
    const Context context{events, platform, run};
    const std::optional<help::Ranking> ranking = help::SearchAllPages(context, pages_, terms_);
    if (!ranking) throw tables::Interruption{};
    ranking_ = *ranking;
}

} // namespace ostrel::cli

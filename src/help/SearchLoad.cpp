#include "help/SearchLoad.h"

#include "help/PageFiles.h"
#include "help/PageReader.h"
#include "help/SearchRanking.h"
#include "services/Paths.h"

namespace ostrel::help {

namespace {

/// The mask with its directory, or empty with a sentence.
Text FullMask(const SearchScope& scope, const Text& given, Text& error) {
    const Text& mask = given.empty() ? scope.search.SearchMask : given;
    if (mask.empty()) {
        error = "No Mask has been specified.";
        return {};
    }
    if (mask.find('/') != Text::npos) {
        error = "Help Page must not be a URL on the Internet.";
        return {};
    }
    if (mask.find('\\') != Text::npos) return mask;
    const Text& directory = scope.service.DirectoryHelp;
    if (!CheckHelpDirectory(*scope.page.context.platform.files, directory, error)) return {};
    return services::AddMissingBackslash(directory) + mask;
}

/// Names the pages. False after a stop.
bool NamePages(Context& context, const Text& mask, SearchPages& loaded) {
    PageFiles files = ListPageFiles(*context.platform.files, mask);
    loaded.directory = std::move(files.directory);
    loaded.pages.reserve(files.names.size());
    for (Text& name : files.names) {
        loaded.pages.emplace_back(std::move(name));
        context.GiveWay();
        if (context.run.Pressed()) return false;
    }
    return true;
}

/// Reads and prepares the pages. False after a stop.
bool ReadPages(const SearchScope& scope, const SearchBounds& bounds, SearchPages& loaded,
               Text& lastFileError) {
    Context& context = scope.page.context;
    PageReader reader(*context.platform.files, bounds.page);
    std::size_t size = 0, done = 0;
    context.stopPanel.ResetGauge();
    for (SearchPage& page : loaded.pages) {
        context.stopPanel.ShowItem(page.FileName());
        context.GiveWay();
        bool tooLarge = size >= bounds.store;
        if (!tooLarge) {
            const TextView html = reader.Read(loaded.directory + page.FileName(), lastFileError, tooLarge);
            if (!html.empty()) page.Read(html, scope.search.SearchNoRobots);
            page.BodyToSearch(scope.search.SearchRemoveHTML);
        }
        if (tooLarge) ++loaded.tooLarge;
        size += page.Size();
        context.stopPanel.ShowGauge(static_cast<Single>(++done) / static_cast<Single>(loaded.pages.size()));
        context.GiveWay();
        if (context.run.Pressed()) return false;
    }
    return true;
}

} // namespace

bool SearchLoad(const SearchScope& scope, const Text& mask, Text& lastFileError, Text& error,
                const SearchBounds& bounds) {
    error.clear();
    const Text full = FullMask(scope, mask, error);
    if (full.empty()) return false;

    const StopPanelShown panel(scope.page.context.stopPanel, "Loading Help Pages");
    scope.store.Clear();
    // The pages come into the store whole: whoever searches it during a yield finds it empty.
    auto loaded = std::make_shared<SearchPages>();
    if (!NamePages(scope.page.context, full, *loaded) || !ReadPages(scope, bounds, *loaded, lastFileError)) {
        scope.store.Clear();
        error = "Loading of Help Pages Interrupted.";
        return false;
    }
    loaded->titlePlaces = TitlePlaces(loaded->pages);
    scope.store.pages = std::move(loaded);
    scope.store.loaded = true;
    return true;
}

} // namespace ostrel::help

#include "cli/DirectoryIndex.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "cli/ProgressLine.h"
#include "help/IndexLetter.h"
#include "help/PageHeadings.h"
#include "services/TagExtraction.h"
#include "services/TagText.h"
#include "tables/CellText.h"
#include "tables/CountText.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

/// A heading's text without its number, such as "3.1. ", which no reader looks for.
Text WithoutNumber(const Text& heading) {
    const std::size_t end = heading.find_first_not_of("0123456789.");
    const bool numbered =
        end != Text::npos && end > 0 && heading[0] != '.' && heading.find('.') < end && heading[end] == ' ';
    return numbered ? Text(TrimBlanks(TextView(heading).substr(end))) : heading;
}

Text TitleOf(TextView html) {
    Text remain;
    const Text title = services::ExtractDoubleTag(html, "TITLE", true, false, remain);
    return Text(TrimBlanks(services::NormaliseSearchText(services::StripTags(title))));
}

} // namespace

DirectoryIndex::DirectoryIndex(const std::string& directory, const std::string& page, Long lowestLevel)
    : directory_(directory) {
    const std::vector<std::string>& names = directory_.Names();
    ProgressLine progress(true);
    directory_.Read([&](std::size_t place, Text html) {
        progress.Show("Reading " + tables::Grouped(place + 1) + " of " +
                      tables::Counted(names.size(), "page"));
        const std::string path = directory_.Path(names[place]);
        std::error_code problem;
        if (html.empty() || std::filesystem::equivalent(path, page, problem)) return;
        ++pages_;
        AddPage(html, names[place], LinkTo(path, page), lowestLevel);
    });
    std::stable_sort(places_.begin(), places_.end(), [](const Place& left, const Place& right) {
        return std::tie(left.key, left.name) < std::tie(right.key, right.name);
    });
}

void DirectoryIndex::AddPage(TextView html, const std::string& fileName, const Text& hyperlink,
                             Long lowestLevel) {
    const auto headings = help::PageHeadings(html, std::max<Long>(lowestLevel, 1));
    Text title = TitleOf(html);
    if (title.empty() && !headings.empty()) title = headings.front().text;
    if (title.empty()) title = tables::HtmlArgument(fileName);
    const auto add = [&](Text name, Text link) {
        Text key = help::IndexSortKey(name);
        places_.push_back({std::move(key), std::move(name), std::move(link), title});
    };
    add(title, hyperlink);
    for (const help::PageHeading& heading : headings) {
        Text name = WithoutNumber(heading.text);
        if (heading.level > lowestLevel || EqualText(name, title) || EqualText(heading.text, title)) continue;
        add(std::move(name), heading.anchor.empty() ? hyperlink : hyperlink + "#" + heading.anchor);
    }
}

help::IndexStore DirectoryIndex::Entries() const {
    help::IndexStore store;
    for (auto first = places_.begin(); first != places_.end();) {
        const auto last = std::find_if(
            first, places_.end(), [&](const Place& place) { return !EqualText(place.name, first->name); });
        const Text letter = help::IndexLetter(first->name);
        // A digit as the character files names without a letter in front of all letters.
        const Text character = letter.empty() ? Text("0") : letter;
        const bool single = last - first == 1;
        store.Add({single ? first->hyperlink : Text(), first->name, false, {}, character});
        for (auto place = first; !single && place != last; ++place)
            store.Add({place->hyperlink, place->title, true, {}, character});
        first = last;
    }
    return store;
}

} // namespace ostrel::cli

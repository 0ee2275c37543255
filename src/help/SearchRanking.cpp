#include "help/SearchRanking.h"

#include <algorithm>

#include "services/SortKeys.h"

namespace ostrel::help {

std::vector<std::uint32_t> TitlePlaces(std::span<const SearchPage> pages) {
    const std::size_t count = pages.size();
    services::SortKeys keys;
    keys.Reserve(count);
    // Pointers that run backward bring the later of two equal titles to the front.
    for (std::size_t i = 0; i < count; ++i) keys.AddText(pages[i].Title(), static_cast<Long>(count - i));
    keys.Sort();
    std::vector<std::uint32_t> places(count);
    for (std::size_t place = 0; place < count; ++place)
        places[keys.SlotAt(place)] = static_cast<std::uint32_t>(place);
    return places;
}

Ranking RankPages(std::span<const PageMatches> found, std::span<const std::uint32_t> titlePlaces,
                  std::size_t most) {
    Ranking ranking;
    Long mostInTitle = 0, mostInText = 0;
    for (const PageMatches& page : found) {
        mostInTitle = std::max(mostInTitle, page.inTitle);
        mostInText = std::max(mostInText, page.inText);
    }
    if (mostInTitle == 0 && mostInText == 0) return ranking;

    const std::int64_t ofTitleMatch = std::int64_t{mostInText} + 1;
    const std::int64_t ofTitle = ofTitleMatch * (std::int64_t{mostInTitle} + 1);
    ranking.top = ofTitle;
    for (std::size_t i = 0; i < found.size(); ++i) {
        const PageMatches& page = found[i];
        const std::int64_t score =
            page.inText + ofTitleMatch * page.inTitle + (page.titleIsPhrase ? ofTitle : 0);
        if (score == 0) continue;
        ranking.top = std::max(ranking.top, score);
        ranking.best.push_back({static_cast<std::uint32_t>(i), score});
    }
    ranking.matching = ranking.best.size();

    const auto better = [&](const RankedPage& left, const RankedPage& right) {
        return left.score != right.score ? left.score > right.score
                                         : titlePlaces[left.page] < titlePlaces[right.page];
    };
    if (most == 0 || most >= ranking.matching) {
        std::sort(ranking.best.begin(), ranking.best.end(), better);
    } else {
        const auto end = ranking.best.begin() + static_cast<std::ptrdiff_t>(most);
        std::partial_sort(ranking.best.begin(), end, ranking.best.end(), better);
        ranking.best.resize(most);
    }
    return ranking;
}

} // namespace ostrel::help

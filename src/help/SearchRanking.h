#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "help/SearchPage.h"

namespace ostrel::help {

/// What a search has found in one page.
struct PageMatches {
    Long inTitle = 0;
    Long inText = 0;            ///< in the body, or in the head
    bool titleIsPhrase = false; ///< the title is the phrase and nothing else
};

/// One page among the results.
struct RankedPage {
    std::uint32_t page = 0; ///< counted from 0
    std::int64_t score = 0;
};

/// The pages that hold the phrase, best first.
struct Ranking {
    std::vector<RankedPage> best; ///< no more than were asked for
    std::size_t matching = 0;     ///< how many hold the phrase
    std::int64_t top = 0;         ///< the score of 100 per cent, which the best page may not reach

    /// Returns how good a score is, from 0 to 100.
    Double Percentage(std::int64_t score) const {
        return static_cast<Double>(score) * 1000 / static_cast<Double>(top) / 10;
    }
};

/// Returns the place of each page in the ascending order of the titles, ignoring case, counted from 0. Of
/// pages with one title the later stands first.
std::vector<std::uint32_t> TitlePlaces(std::span<const SearchPage> pages);

/// Scores and ranks pages. One match in a title counts more than all matches in any text, and a title that is
/// the phrase more than all matches in any title. Pages of one score come in the order of their title places.
/// `most` is the number of pages wanted, 0 for all.
Ranking RankPages(std::span<const PageMatches> found, std::span<const std::uint32_t> titlePlaces,
                  std::size_t most);

} // namespace ostrel::help

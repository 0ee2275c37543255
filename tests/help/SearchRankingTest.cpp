#include "help/SearchRanking.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "text/CodePage.h"

namespace ostrel::help {

namespace {

/// Sorts by exchanges of neighbours in two directions: the lowest score first, and titles in reverse order.
std::vector<std::uint32_t> ByExchanges(const std::vector<std::int64_t>& scores,
                                       const std::vector<SearchPage>& pages) {
    std::vector<std::uint32_t> order(scores.size());
    std::iota(order.begin(), order.end(), 0u);
    const auto exchange = [&](std::size_t i) {
        const std::uint32_t left = order[i - 1], right = order[i];
        const bool wrong =
            scores[left] > scores[right] ||
            (scores[left] == scores[right] && CompareText(pages[left].Title(), pages[right].Title()) < 0);
        if (wrong) std::swap(order[i - 1], order[i]);
        return wrong;
    };
    for (bool exchanged = true; exchanged;) {
        exchanged = false;
        for (std::size_t i = 1; i < order.size(); ++i) exchanged |= exchange(i);
        if (!exchanged) break;
        exchanged = false;
        for (std::size_t i = order.size(); i-- > 1;) exchanged |= exchange(i);
    }
    return order;
}

} // namespace

TEST(SearchRanking, RanksAsExchangesOfNeighboursDo) {
    std::mt19937 random{11};
    constexpr TextView letters[] = {"a", "B", "b", "A\xC4", "\xE4", "", "Z_"};
    for (int round = 0; round < 300; ++round) {
        const std::size_t count = random() % 60;
        std::vector<SearchPage> pages;
        std::vector<PageMatches> found(count);
        for (PageMatches& matches : found) {
            Text title;
            for (unsigned i = random() % 4; i > 0; --i) title.append(letters[random() % std::size(letters)]);
            pages.emplace_back("p.htm").Read("<HEAD><TITLE>" + title + "</TITLE></HEAD>", false);
            matches.inText = static_cast<Long>(random() % 3);
            matches.inTitle = round % 2 ? static_cast<Long>(random() % 2) : 0;
            matches.titleIsPhrase = random() % 9 == 0;
        }
        Long mostInText = 0, mostInTitle = 0;
        for (const PageMatches& matches : found) {
            mostInText = std::max(mostInText, matches.inText);
            mostInTitle = std::max(mostInTitle, matches.inTitle);
        }
        std::vector<std::int64_t> scores;
        for (const PageMatches& matches : found)
            scores.push_back(matches.inText + (mostInText + 1) * matches.inTitle +
                             (matches.titleIsPhrase ? (mostInText + 1) * (mostInTitle + 1) : 0));
        const bool any = mostInText + mostInTitle > 0;
        std::vector<std::uint32_t> expected;
        const std::vector<std::uint32_t> order = ByExchanges(scores, pages);
        for (auto page = order.rbegin(); any && page != order.rend(); ++page)
            if (scores[*page] > 0) expected.push_back(*page);

        const auto places = TitlePlaces(pages);
        for (const std::size_t most : {std::size_t{0}, std::size_t{5}}) {
            const Ranking ranking = RankPages(found, places, most);
            EXPECT_EQ(ranking.matching, expected.size());
            std::vector<std::uint32_t> ranked;
            for (const RankedPage& page : ranking.best) ranked.push_back(page.page);
            auto wanted = expected;
            if (most && wanted.size() > most) wanted.resize(most);
            ASSERT_EQ(ranked, wanted) << "round " << round;
        }
    }
}

// The product of the counts passes 32 bits.
TEST(SearchRanking, LargeCounts) {
    const std::vector<PageMatches> found{{60'000'000, 60'000'000, true}, {1, 0, false}};
    const Ranking ranking = RankPages(found, std::vector<std::uint32_t>{0, 1}, 0);
    EXPECT_EQ(ranking.top, 7'200'000'240'000'001);
    EXPECT_EQ(ranking.Percentage(ranking.best[0].score), 100);
}

} // namespace ostrel::help

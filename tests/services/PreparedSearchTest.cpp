#include "services/PreparedSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

/// Place by place over folded copies.
Long SlowCount(Text text, Text phrase, bool matchCase, bool wholeWords) {
    text = NormaliseSearchText(text);
    phrase = NormaliseSearchText(phrase);
    if (phrase.empty()) return 0;
    if (wholeWords) {
        text = " " + text + " ";
        phrase = " " + phrase + " ";
    }
    if (!matchCase) {
        text = Upper(text);
        phrase = Upper(phrase);
    }
    Long count = 0;
    for (std::size_t at = 0; (at = text.find(phrase, at)) != NotFound; ++at) ++count;
    return count;
}

} // namespace

TEST(PreparedSearch, SearchCount) {
    struct Row {
        Text text, phrase;
        bool matchCase, wholeWords;
        Long expected;
    };
    for (const auto& [text, phrase, matchCase, wholeWords, expected] : std::vector<Row>{
             {"aaa", "aa", true, false, 2},
             {"the cat sat", "cat", true, true, 1},
             {"the cat.", "cat", true, true, 0},
             {"cats", "cat", true, true, 0},
             {"cat", "cat", true, true, 1},
             {"Cat CAT", "cat", true, false, 0},
             {"Cat CAT", "cat", false, false, 2},
             {"one\r\n two", "one two", true, false, 1},
             {"one\ntwo", "onetwo", true, false, 1},
             {"\xC4\xE4", "\xE4", false, false, 2},
             {"abc", "", true, false, 0},
             {" x ", "", true, true, 0},
         })
        EXPECT_EQ(SearchCount(text, phrase, matchCase, wholeWords), expected) << text << " | " << phrase;
}

TEST(PreparedSearch, CountsWhatASlowSearchCounts) {
    std::mt19937 random{3};
    const auto mixed = [&](unsigned most, TextView letters) {
        Text text;
        for (unsigned count = random() % (most + 1); count > 0; --count)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int i = 0; i < 4000; ++i) {
        const TextView letters = i % 3 == 0 ? "aA" : i % 3 == 1 ? "abxB \r\n\xE4\xC4" : "the lazy Fox\r\n";
        const Text text = mixed(i % 10 == 0 ? 3000 : 200, letters);
        // A part of the text is found more often than a phrase by chance.
        const std::size_t at = random() % (text.size() + 1);
        const Text phrase = i % 2 == 0 ? text.substr(at, random() % 20) : mixed(4, letters);
        const SearchText prepared(text);
        for (int flags = 0; flags < 4; ++flags) {
            const bool matchCase = flags & 1, wholeWords = flags & 2;
            const Long expected = SlowCount(text, phrase, matchCase, wholeWords);
            ASSERT_EQ(SearchPhrase(phrase, matchCase, wholeWords).CountIn(prepared), expected)
                << text << " | " << phrase << " " << flags;
            ASSERT_EQ(SearchCount(text, phrase, matchCase, wholeWords), expected);
        }
    }
}

// Quadratic work on these texts would outlast any patience.
TEST(PreparedSearch, RepetitiveTextsStayLinear) {
    const SearchText text(Text(2'000'000, 'a'));
    EXPECT_EQ(SearchPhrase(Text(1'000'000, 'A'), false, false).CountIn(text), 1'000'001);
    EXPECT_EQ(SearchPhrase(Text(1'000'000, 'a'), true, false).CountIn(text), 1'000'001);
    EXPECT_EQ(SearchPhrase(Text(500'000, 'a') + "b" + Text(500'000, 'a'), true, false).CountIn(text), 0);
}

} // namespace ostrel::services

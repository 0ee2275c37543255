#include "text/TextSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "text/CodePage.h"

namespace ostrel {

namespace {

std::size_t SlowCount(const Text& text, const Text& phrase) {
    std::size_t count = 0;
    if (phrase.empty()) return 0;
    for (std::size_t i = 0; (i = text.find(phrase, i)) != NotFound; ++i) ++count;
    return count;
}

} // namespace

TEST(TextSearch, FindsWhatAPlainSearchFinds) {
    std::mt19937 random{7};
    const auto mixed = [&](unsigned most, TextView letters) {
        Text text;
        for (unsigned count = random() % (most + 1); count > 0; --count)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int i = 0; i < 10000; ++i) {
        const TextView letters = i % 3 == 0 ? "aA" : i % 3 == 1 ? "aAbB\xE4\xC4" : "ab<";
        const Text text = mixed(i % 10 == 0 ? 900 : 60, letters);
        const Text phrase = mixed(i % 10 == 0 ? 40 : 5, letters);
        const std::size_t from = random() % (text.size() + 2);
        const Text folded = Upper(text), foldedPhrase = Upper(phrase);
        ASSERT_EQ(FindText(text, phrase, from), folded.find(foldedPhrase, from)) << text << " " << phrase;
        ASSERT_EQ(FindExact(text, phrase, from), text.find(phrase, from)) << text << " " << phrase;
        ASSERT_EQ(CountText(text, phrase), SlowCount(folded, foldedPhrase)) << text << " " << phrase;
        ASSERT_EQ(CountExact(text, phrase), SlowCount(text, phrase)) << text << " " << phrase;
    }
}

// Quadratic work on these texts would outlast any patience.
TEST(TextSearch, RepetitiveTextsStayLinear) {
    const Text text(2'000'000, 'a');
    const Text phrase = Text(500'000, 'A') + "b";
    EXPECT_EQ(FindText(text, phrase), NotFound);
    EXPECT_EQ(FindExact(text, Text(500'000, 'a') + "b"), NotFound);
    EXPECT_EQ(CountText(text, Text(1'000'000, 'A')), 1'000'001u);
    EXPECT_EQ(ReplaceAll(text, phrase, "x").size(), text.size());
    Text hits;
    for (int i = 0; i < 50'000; ++i) hits += "aaaaaaaaaaaaaaab";
    EXPECT_EQ(ReplaceAllText(hits, "AAAAAAAAAAAAAAB", "").size(), 50'000u);
}

TEST(TextSearch, Replace) {
    struct Row {
        Text text, from, to, exact, folded;
    };
    for (const auto& [text, from, to, exact, folded] : std::vector<Row>{
             {"abcabc", "bc", "x", "axax", "axax"},
             {"aBcabC", "bc", "x", "aBcabC", "axax"},
             {"aaa", "a", "aa", "aaaaaa", "aaaaaa"},
             {"aaa", "aa", "a", "aa", "aa"},
             {"abc", "", "x", "abc", "abc"},
             {"", "a", "x", "", ""},
             {"\x9A\x8A\xDF\xD7\xF7", "\x8A", "s", "\x9As\xDF\xD7\xF7", "ss\xDF\xD7\xF7"},
         }) {
        EXPECT_EQ(ReplaceAll(text, from, to), exact) << text;
        EXPECT_EQ(ReplaceAllText(text, from, to), folded) << text;
    }
}

} // namespace ostrel

#include "services/PreparedSearch.h"

#include <utility>

#include "services/TagText.h"

namespace ostrel::services {

namespace {

Text BetweenBlanks(Text text) { return text.insert(0, 1, ' ').append(" "); }

Text PhraseOf(TextView phrase, bool wholeWords) {
    Text text = NormaliseSearchText(phrase);
    return wholeWords && !text.empty() ? BetweenBlanks(std::move(text)) : text;
}

} // namespace

SearchText::SearchText(TextView text) : spaced_(BetweenBlanks(NormaliseSearchText(text))) {}

SearchPhrase::SearchPhrase(TextView phrase, bool matchCase, bool wholeWords)
    : wholeWords_(wholeWords), counter_(PhraseOf(phrase, wholeWords), matchCase) {}

Long SearchPhrase::CountIn(const SearchText& text) const {
    return static_cast<Long>(counter_.CountIn(wholeWords_ ? text.Spaced() : text.Normalised()));
}

Long SearchCount(TextView text, TextView phrase, bool matchCase, bool wholeWords) {
    const SearchPhrase wanted(phrase, matchCase, wholeWords);
    return wanted.Empty() ? 0 : wanted.CountIn(SearchText(text));
}

} // namespace ostrel::services

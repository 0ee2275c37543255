#pragma once

#include "text/PhraseCounter.h"

namespace ostrel::services {

/// A text made ready once to be searched many times: normalised as by `NormaliseSearchText`, with a blank at
/// both ends, so that every word stands between two blanks. It holds one copy of the text.
class SearchText {
public:
    explicit SearchText(TextView text);

    TextView Normalised() const { return TextView(spaced_).substr(1, spaced_.size() - 2); }
    /// The same with the blanks at both ends.
    TextView Spaced() const { return spaced_; }

private:
    Text spaced_;
};

/// A phrase made ready once to be counted in many texts.
class SearchPhrase {
public:
    SearchPhrase(TextView phrase, bool matchCase, bool wholeWords);

    bool Empty() const { return counter_.Phrase().empty(); }
    /// What `SearchCount` of that text and this phrase is.
    Long CountIn(const SearchText& text) const;

private:
    bool wholeWords_;
    PhraseCounter counter_;
};

/// How often the phrase occurs in the text, overlapping places included. Only a blank ends a word. Who
/// searches a text or for a phrase more than once prepares it.
Long SearchCount(TextView text, TextView phrase, bool matchCase, bool wholeWords);

} // namespace ostrel::services

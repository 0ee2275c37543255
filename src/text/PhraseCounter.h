#pragma once

#include <cstddef>

#include "text/Text.h"

namespace ostrel {

/// A phrase made ready to be counted in many texts. It looks for its two rarest characters at once, so most
/// of a text is passed over in blocks, and ignoring case it looks for both their cases, so the text needs no
/// folded copy.
class PhraseCounter {
public:
    PhraseCounter(Text phrase, bool matchCase);

    const Text& Phrase() const { return phrase_; }
    /// How often the phrase occurs, overlapping places included. An empty phrase occurs nowhere. Linear,
    /// whatever text and phrase are.
    std::size_t CountIn(TextView text) const;

private:
    /// One character of the phrase in both cases; the same one twice where the case matters.
    struct Mark {
        std::size_t offset = 0;
        char one = 0, other = 0;
    };

    Mark MarkAt(std::size_t offset) const;
    /// How many characters are the phrase's from there on.
    std::size_t SameAt(const char* text) const;

    Text phrase_;
    bool matchCase_;
    Mark first_, second_;
};

} // namespace ostrel

#include "text/PhraseCounter.h"

#include <algorithm>
#include <utility>

#include "text/CodePage.h"

namespace ostrel {

namespace {

/// The higher, the rarer a character is in ordinary text.
std::size_t Rarity(char c) {
    constexpr TextView common = " etaoinsrhldcumfpgwybvkxjqz";
    return std::min(common.find(static_cast<char>(LowerByte(c))), common.size());
}

} // namespace

PhraseCounter::PhraseCounter(Text phrase, bool matchCase)
    : phrase_(std::move(phrase)), matchCase_(matchCase) {
    if (phrase_.empty()) return;
    std::size_t first = 0, second = phrase_.size() - 1;
    for (std::size_t i = 0; i < phrase_.size(); ++i) {
        if (Rarity(phrase_[i]) > Rarity(phrase_[first])) {
            second = first;
            first = i;
        } else if (i != first && Rarity(phrase_[i]) > Rarity(phrase_[second])) {
            second = i;
        }
    }
    first_ = MarkAt(first);
    second_ = MarkAt(second);
}

PhraseCounter::Mark PhraseCounter::MarkAt(std::size_t offset) const {
    const char c = phrase_[offset];
    if (matchCase_) return {offset, c, c};
    return {offset, static_cast<char>(LowerByte(c)), static_cast<char>(UpperByte(c))};
}

std::size_t PhraseCounter::SameAt(const char* text) const {
    std::size_t same = 0;
    if (matchCase_)
        while (same < phrase_.size() && text[same] == phrase_[same]) ++same;
    else
        while (same < phrase_.size() && UpperByte(text[same]) == UpperByte(phrase_[same])) ++same;
    return same;
}

std::size_t PhraseCounter::CountIn(TextView text) const {
    if (phrase_.empty() || phrase_.size() > text.size()) return 0;
    const char* const first = text.data() + first_.offset;
    const char* const second = text.data() + second_.offset;
    const auto mayBe = [first, second, a = first_, b = second_](std::size_t at) {
        return static_cast<char>(((first[at] == a.one) | (first[at] == a.other)) &
                                 ((second[at] == b.one) | (second[at] == b.other)));
    };
    const std::size_t end = text.size() - phrase_.size() + 1;
    std::size_t count = 0, compared = 0;
    for (std::size_t at = 0; at < end;) {
        constexpr std::size_t block = 256;
        char candidates[block];
        const std::size_t size = std::min(block, end - at);
        // Without an exit inside it, so that compilers turn a whole block into vector code.
        if (size == block)
            for (std::size_t i = 0; i < block; ++i) candidates[i] = mayBe(at + i);
        else
            for (std::size_t i = 0; i < size; ++i) candidates[i] = mayBe(at + i);
        for (TextView left(candidates, size);;) {
            const std::size_t next = left.find(char{1});
            if (next == NotFound) break;
            left.remove_prefix(next + 1);
            const std::size_t behind = at + size - left.size();
            const std::size_t same = SameAt(text.data() + behind - 1);
            if (same == phrase_.size()) ++count;
            compared += same;
            // Where comparisons outgrow the way made, as in repetitive texts, a search takes over that never
            // looks at a character twice.
            if (compared > 4 * behind + phrase_.size() + 64) {
                text.remove_prefix(behind);
                return count + (matchCase_ ? CountExact(text, phrase_) : CountText(text, phrase_));
            }
        }
        at += size;
    }
    return count;
}

} // namespace ostrel

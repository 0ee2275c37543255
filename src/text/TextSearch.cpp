#include "text/TextSearch.h"

#include <cstring>
#include <vector>

#include "text/CodePage.h"

namespace ostrel {

namespace {

struct Exact {
    static unsigned char Fold(char c) { return static_cast<unsigned char>(c); }
    static char Partner(char c) { return c; }
};

struct IgnoringCase {
    static unsigned char Fold(char c) { return UpperByte(c); }
    static char Partner(char c) {
        const auto lower = static_cast<char>(LowerByte(c));
        return lower == c ? static_cast<char>(UpperByte(c)) : lower;
    }
};

/// First place of either byte in [from, end), or `end`.
std::size_t NextOfTwo(const char* data, std::size_t from, std::size_t end, char a, char b) {
    if (a == b) {
        const void* hit = from < end ? std::memchr(data + from, a, end - from) : nullptr;
        return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - data) : end;
    }
    // Whole blocks without an exit inside them, which compilers turn into vector code.
    constexpr std::size_t block = 32;
    for (; from + block <= end; from += block) {
        unsigned char any = 0;
        for (std::size_t i = 0; i < block; ++i)
            any |= static_cast<unsigned char>((data[from + i] == a) | (data[from + i] == b));
        if (any) break;
    }
    while (from < end && data[from] != a && data[from] != b) ++from;
    return from;
}

/// Knuth, Morris and Pratt: never looks at a byte of the text twice, at the price of a table.
template <class Fold>
class Automaton {
public:
    explicit Automaton(TextView phrase) : phrase_(phrase), border_(phrase.size()) {
        for (std::size_t i = 1, length = 0; i < phrase.size(); ++i) {
            while (length > 0 && !Same(phrase[i], length)) length = border_[length - 1];
            if (Same(phrase[i], length)) ++length;
            border_[i] = length;
        }
    }

    /// The place of the next match, the text being read on from `position`, which moves behind it. A further
    /// call finds matches that overlap the last one.
    std::size_t Next(TextView text, std::size_t& position) {
        const char first = phrase_[0];
        const char partner = Fold::Partner(first);
        while (position < text.size()) {
            if (matched_ == 0) {
                position = NextOfTwo(text.data(), position, text.size(), first, partner);
                if (position == text.size()) break;
            }
            const char c = text[position++];
            while (matched_ > 0 && !Same(c, matched_)) matched_ = border_[matched_ - 1];
            if (Same(c, matched_)) ++matched_;
            if (matched_ < phrase_.size()) continue;
            matched_ = border_[matched_ - 1];
            return position - phrase_.size();
        }
        return NotFound;
    }

private:
    bool Same(char c, std::size_t index) const { return Fold::Fold(c) == Fold::Fold(phrase_[index]); }

    TextView phrase_;
    std::vector<std::size_t> border_;
    std::size_t matched_ = 0;
};

template <class Fold>
std::size_t Find(TextView text, TextView phrase, std::size_t from) {
    if (from > text.size()) return NotFound;
    if (phrase.empty()) return from;
    if (phrase.size() > text.size() - from) return NotFound;
    const std::size_t end = text.size() - phrase.size() + 1;
    const char first = phrase[0];
    const char partner = Fold::Partner(first);
    // Trying each place costs nothing in ordinary text. Once the vain comparisons outgrow the way made, the
    // automaton takes over, so that repetitive texts stay linear, also over a chain of calls.
    std::size_t vain = 0;
    std::size_t place = from;
    while ((place = NextOfTwo(text.data(), place, end, first, partner)) < end) {
        std::size_t same = 1;
        while (same < phrase.size() && Fold::Fold(text[place + same]) == Fold::Fold(phrase[same])) ++same;
        if (same == phrase.size()) return place;
        vain += same;
        if (vain > 4 * (place - from) + phrase.size() + 64) {
            Automaton<Fold> automaton(phrase);
            return automaton.Next(text, place);
        }
        ++place;
    }
    return NotFound;
}

template <class Fold>
std::size_t Count(TextView text, TextView phrase) {
    if (phrase.empty() || phrase.size() > text.size()) return 0;
    Automaton<Fold> automaton(phrase);
    std::size_t count = 0;
    for (std::size_t position = 0; automaton.Next(text, position) != NotFound;) ++count;
    return count;
}

template <class Fold>
Text Replace(TextView text, TextView from, TextView to) {
    if (from.empty()) return Text(text);
    std::size_t hit = Find<Fold>(text, from, 0);
    if (hit == NotFound) return Text(text);
    Text result;
    result.reserve(text.size() + (to.size() > from.size() ? to.size() : 0));
    std::size_t start = 0;
    while (hit != NotFound) {
        result.append(text, start, hit - start).append(to);
        start = hit + from.size();
        hit = Find<Fold>(text, from, start);
    }
    return result.append(text, start);
}

} // namespace

std::size_t FindText(TextView text, TextView phrase, std::size_t from) {
    return Find<IgnoringCase>(text, phrase, from);
}

std::size_t FindExact(TextView text, TextView phrase, std::size_t from) {
    return Find<Exact>(text, phrase, from);
}

std::size_t CountText(TextView text, TextView phrase) { return Count<IgnoringCase>(text, phrase); }

std::size_t CountExact(TextView text, TextView phrase) { return Count<Exact>(text, phrase); }

Text ReplaceAll(TextView text, TextView from, TextView to) { return Replace<Exact>(text, from, to); }

Text ReplaceAllText(TextView text, TextView from, TextView to) {
    return Replace<IgnoringCase>(text, from, to);
}

} // namespace ostrel

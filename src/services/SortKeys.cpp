#include "services/SortKeys.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

#include "services/SortEvents.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

constexpr std::size_t WordSize = sizeof(std::uint64_t);
/// Ties up to this many compare the rest of their texts; more of them go eight bytes deeper together.
constexpr std::size_t FewTies = 16;

/// Eight bytes as a number that has their order; what lies behind the end is zero.
std::uint64_t LeadingWord(TextView text) {
    if (text.size() >= WordSize) {
        std::uint64_t word;
        std::memcpy(&word, text.data(), WordSize);
        if constexpr (std::endian::native == std::endian::little) {
            word = ((word & 0x00FF00FF00FF00FF) << 8) | ((word >> 8) & 0x00FF00FF00FF00FF);
            word = ((word & 0x0000FFFF0000FFFF) << 16) | ((word >> 16) & 0x0000FFFF0000FFFF);
            word = (word << 32) | (word >> 32);
        }
        return word;
    }
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < WordSize; ++i)
        word = (word << 8) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return word;
}

/// A whole number of the same order; what is no number comes first.
std::uint64_t OrderedNumber(Double value) {
    if (value != value) return 0;
    const auto bits = std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return bits & sign ? ~bits : bits | sign;
}

} // namespace

bool SortKeys::Entry::operator<(const Entry& other) const {
    if (word != other.word) return word < other.word;
    if (pointer != other.pointer) return pointer < other.pointer;
    return slot < other.slot;
}

void SortKeys::Reserve(std::size_t count, std::size_t textBytes) {
    entries_.reserve(count);
    if (textBytes > 0) {
        texts_.reserve(textBytes);
        ends_.reserve(count);
    }
}

void SortKeys::Clear() { *this = SortKeys(); }

void SortKeys::AddText(TextView text, Long pointer) {
    const std::size_t start = texts_.size();
    texts_.resize(start + text.size());
    char* to = texts_.data() + start;
    for (const char c : text) *to++ = static_cast<char>(UpperByte(c));
    EndText(pointer);
}

void SortKeys::AddFolded(TextView folded, Long pointer) {
    texts_.insert(texts_.end(), folded.begin(), folded.end());
    EndText(pointer);
}

void SortKeys::EndText(Long pointer) {
    if (wideEnds_.empty() && texts_.size() > std::numeric_limits<std::uint32_t>::max()) {
        wideEnds_.reserve(ends_.capacity());
        wideEnds_.assign(ends_.begin(), ends_.end());
        ends_ = {};
    }
    if (wideEnds_.empty() && texts_.size() <= std::numeric_limits<std::uint32_t>::max())
        ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
    else
        wideEnds_.push_back(texts_.size());
    entries_.push_back({0, static_cast<std::uint32_t>(entries_.size()), pointer});
}

void SortKeys::AddNumber(Double value, Long pointer) {
    entries_.push_back({OrderedNumber(value), static_cast<std::uint32_t>(entries_.size()), pointer});
}

TextView SortKeys::TextOf(std::uint32_t slot) const {
    const auto end = [&](std::uint32_t at) { return wideEnds_.empty() ? ends_[at] : wideEnds_[at]; };
    const std::uint64_t begin = slot == 0 ? 0 : end(slot - 1);
    return {texts_.data() + begin, static_cast<std::size_t>(end(slot) - begin)};
}

/// The depth down to which all texts of a run are the same.
std::size_t SortKeys::CommonDepth(const Run& run) const {
    const TextView first = TextOf(entries_[run.begin].slot);
    std::size_t common = first.size();
    for (std::size_t i = run.begin + 1; i < run.end && common > run.depth; ++i) {
        const TextView text = TextOf(entries_[i].slot);
        common = std::min(common, text.size());
        if (std::memcmp(first.data() + run.depth, text.data() + run.depth, common - run.depth) == 0) continue;
        common =
            static_cast<std::size_t>(std::mismatch(first.begin() + static_cast<std::ptrdiff_t>(run.depth),
                                                   first.begin() + static_cast<std::ptrdiff_t>(common),
                                                   text.begin() + static_cast<std::ptrdiff_t>(run.depth))
                                         .first -
                                     first.begin());
    }
    return common;
}

/// Sorts texts that are the same down to the run's depth by their next eight bytes. Where many are the same
/// in these too, they become runs of their own.
void SortKeys::SortRun(const Run& run, std::vector<Run>& ties) {
    const std::size_t depth = CommonDepth(run);
    const std::size_t deeper = depth + WordSize;
    const auto at = [&](std::size_t place) { return entries_.begin() + static_cast<std::ptrdiff_t>(place); };
    for (auto entry = at(run.begin); entry != at(run.end); ++entry)
        entry->word = LeadingWord(TextOf(entry->slot).substr(depth));
    std::sort(at(run.begin), at(run.end));

    // A text that ends within the eight bytes stands before those that go on, and a shorter one, whose end is
    // filled with zeros, before one that holds zeros there.
    const auto reach = [&](const Entry& entry) { return std::min(TextOf(entry.slot).size(), deeper + 1); };
    const auto shorter = [&](const Entry& left, const Entry& right) {
        const std::size_t l = reach(left), r = reach(right);
        return l != r ? l < r : left < right;
    };
    const auto rest = [&](const Entry& left, const Entry& right) {
        const int order = TextOf(left.slot).substr(deeper).compare(TextOf(right.slot).substr(deeper));
        return order != 0 ? order < 0 : left < right;
    };
    for (std::size_t begin = run.begin, end; begin < run.end; begin = end) {
        for (end = begin + 1; end < run.end && entries_[end].word == entries_[begin].word;) ++end;
        if (end - begin < 2) continue;
        if (!std::is_sorted(at(begin), at(end), shorter)) std::sort(at(begin), at(end), shorter);
        const auto goingOn = static_cast<std::size_t>(
            std::partition_point(at(begin), at(end), [&](const Entry& e) { return reach(e) <= deeper; }) -
            entries_.begin());
        if (end - goingOn > FewTies)
            ties.push_back({goingOn, end, deeper});
        else
            std::sort(at(goingOn), at(end), rest);
    }
}

void SortKeys::Sort() {
    if (ends_.empty() && wideEnds_.empty()) {
        std::sort(entries_.begin(), entries_.end());
        return;
    }
    std::vector<Run> ties{{0, entries_.size(), 0}};
    while (!ties.empty()) {
        const Run run = ties.back();
        ties.pop_back();
        SortRun(run, ties);
    }
}

SortKeys SortKeys::Arranged(std::span<const Long> pointers) const {
    std::vector<std::uint32_t> places(entries_.size());
    for (std::size_t place = 0; place < entries_.size(); ++place)
        places[entries_[place].slot] = static_cast<std::uint32_t>(place);
    const bool texts = !ends_.empty() || !wideEnds_.empty();
    SortKeys arranged;
    arranged.Reserve(pointers.size());
    for (const Long pointer : pointers) {
        const bool known = pointer >= 1 && pointer <= Count();
        const auto slot = static_cast<std::uint32_t>(pointer - 1);
        if (texts)
            arranged.AddFolded(known ? TextOf(slot) : TextView(), pointer);
        else
            arranged.entries_.push_back({known ? entries_[places[slot]].word : OrderedNumber(0),
                                         static_cast<std::uint32_t>(arranged.entries_.size()), pointer});
    }
    return arranged;
}

namespace {

bool TellPasses(SortEvents& events, std::size_t count) {
    for (std::size_t gap = count; gap >= 2;) {
        gap /= 2;
        events.Watched();
        if (!events.PassDone()) return false;
    }
    events.Finished();
    return true;
}

void PutSorted(const SortKeys& keys, std::span<Long> pointers, bool up) {
    const std::size_t count = pointers.size();
    for (std::size_t i = 0; i < count; ++i) pointers[i] = keys.PointerAt(up ? i : count - 1 - i);
}

} // namespace

bool SortByKeys(Context& context, SortKeys& keys, std::span<Long> pointers, bool up) {
    SortEvents events(context);
    bool plain = static_cast<std::size_t>(keys.Count()) == pointers.size();
    for (std::size_t i = 0; plain && i < pointers.size(); ++i)
        plain = pointers[i] == static_cast<Long>(i) + 1;
    if (plain) {
        keys.Sort();
        PutSorted(keys, pointers, up);
    } else {
        SortKeys arranged = keys.Arranged(pointers);
        arranged.Sort();
        PutSorted(arranged, pointers, up);
    }
    return TellPasses(events, pointers.size());
}

bool SortByReversing(Context& context, std::span<Long> pointers) {
    SortEvents events(context);
    std::reverse(pointers.begin(), pointers.end());
    return TellPasses(events, pointers.size());
}

} // namespace ostrel::services

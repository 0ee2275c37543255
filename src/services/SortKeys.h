#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/Context.h"
#include "text/Text.h"

namespace ostrel::services {

/// The keys of one column of a table, prepared once: texts folded into one buffer, dates, times and numbers
/// as whole numbers of the same order. A key is added for each pointer in turn; 20 bytes a key and the
/// texts.
class SortKeys {
public:
    /// Makes room for so many keys with so many bytes of text.
    void Reserve(std::size_t count, std::size_t textBytes = 0);
    /// Gives all memory back.
    void Clear();

    /// A key of the pointer that follows, counted from 1. One column has texts or numbers, never both.
    void AddText(TextView text) { AddText(text, NextPointer()); }
    void AddNumber(Double value) { AddNumber(value, NextPointer()); }
    /// A key of any pointer, which decides among equal keys.
    void AddText(TextView text, Long pointer);
    void AddNumber(Double value, Long pointer);

    Long Count() const { return static_cast<Long>(entries_.size()); }

    /// Puts the keys in ascending order, in n log n whatever the input; equal keys in the order of their
    /// pointers.
    void Sort();
    /// The pointer, and the place counted from 0 at which it was added, of the sorted key at `place`.
    Long PointerAt(std::size_t place) const { return static_cast<Long>(entries_[place].pointer); }
    std::uint32_t SlotAt(std::size_t place) const { return entries_[place].slot; }

    /// Keys of other pointers into the same values: each of them picks the key that was added in its place,
    /// an empty one where it lies outside.
    SortKeys Arranged(std::span<const Long> pointers) const;

private:
    struct Entry {
        std::uint64_t word; ///< a number, or eight bytes of the text at the depth that is being sorted
        std::uint32_t slot;
        std::int32_t pointer;
        bool operator<(const Entry& other) const;
    };

    struct Run {
        std::size_t begin, end, depth;
    };

    Long NextPointer() const { return Count() + 1; }
    void AddFolded(TextView folded, Long pointer);
    void EndText(Long pointer);
    TextView TextOf(std::uint32_t slot) const;
    std::uint64_t WordOf(std::uint32_t slot, std::size_t depth) const;
    std::size_t CommonDepth(const Run& run) const;
    void SortRun(const Run& run, std::vector<Run>& ties);

    std::vector<Entry> entries_;
    std::vector<char> texts_;
    /// Ends of the texts, in 32 bits while they suffice.
    std::vector<std::uint32_t> ends_;
    std::vector<std::uint64_t> wideEnds_;
};

/// Sorts 1 to n, or whatever order `pointers` has, as `SortText` and its like do, with the same events,
/// yields and stops, for a caller whose pointers nobody sees between the passes: the final order is computed
/// at once. `keys` holds the key of pointer 1 first. True where the sort came to its end.
bool SortByKeys(Context& context, SortKeys& keys, std::span<Long> pointers, bool up);

/// The same where `pointers` are sorted the other way: the order is total, so they are turned round, and no
/// keys are needed.
bool SortByReversing(Context& context, std::span<Long> pointers);

} // namespace ostrel::services

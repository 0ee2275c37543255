#pragma once

#include <cstdint>
#include <vector>

#include "text/Array.h"

namespace ostrel::services {

class SortKeys;

/// The passes of a Shell sort over items whose final order is known already. After a pass every chain of its
/// gap is in order, and as no two items rank the same, that leaves one state only; so a pass may reach it
/// by any way, and it takes linear time at worst.
class ShellPasses {
public:
    /// The items in the order in which they were added to the sorted keys. The first gap is half of `gap`.
    ShellPasses(const SortKeys& keys, std::size_t gap, bool up);

    std::size_t Gap() const { return gap_; }
    /// Does the passes down to that of this gap.
    void RunTo(std::size_t gap);
    /// The pointers as the last pass left them.
    void Put(Array<Long>& pointers) const;

private:
    /// The rank in the high half and the pointer in the low one: a comparison of items is one of ranks.
    using Item = std::uint64_t;

    void Pass();
    bool PassByInsertion();
    void PassByRank();

    std::vector<Item> items_;
    std::size_t gap_;
};

} // namespace ostrel::services

#pragma once

#include <cstdint>
#include <vector>

#include "text/Array.h"

namespace ostrel::services {

class SortKeys;

/// The passes of a Shell sort over items whose final order is known already. After a pass every chain of its
/// gap is in order, and as no two items rank the same, that leaves one state only. So a pass may reach it by
/// any way: the items are dealt out to their chains in the order of their ranks, which takes the same linear
/// time for every input.
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
    void Pass();

    std::vector<Long> pointers_;           ///< by rank
    std::vector<std::uint32_t> positions_; ///< by rank, from 0
    std::vector<std::uint32_t> next_;      ///< the place in each chain that is filled next
    std::size_t gap_;
};

} // namespace ostrel::services

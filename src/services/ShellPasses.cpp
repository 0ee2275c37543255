#include "services/ShellPasses.h"

#include <numeric>

#include "services/SortKeys.h"

namespace ostrel::services {

ShellPasses::ShellPasses(const SortKeys& keys, std::size_t gap, bool up)
    : pointers_(static_cast<std::size_t>(keys.Count())), positions_(pointers_.size()), gap_(gap) {
    const std::size_t count = pointers_.size();
    for (std::size_t rank = 0; rank < count; ++rank) {
        const std::size_t place = up ? rank : count - 1 - rank;
        pointers_[rank] = keys.PointerAt(place);
        positions_[rank] = keys.SlotAt(place);
    }
}

void ShellPasses::RunTo(std::size_t gap) {
    while (gap_ > gap) {
        gap_ /= 2;
        if (gap_ < positions_.size()) Pass();
    }
}

void ShellPasses::Pass() {
    next_.resize(gap_);
    std::iota(next_.begin(), next_.end(), 0u);
    const auto gap = static_cast<std::uint32_t>(gap_);
    const double inverse = 1.0 / gap;
    for (std::uint32_t& position : positions_) {
        // The remainder without a division: the quotient may come out one too small, never too large.
        std::uint32_t chain = position - static_cast<std::uint32_t>(position * inverse) * gap;
        if (chain >= gap) chain -= gap;
        position = next_[chain];
        next_[chain] += gap;
    }
}

void ShellPasses::Put(Array<Long>& pointers) const {
    // A listener may have changed the array since.
    const auto count = static_cast<std::size_t>(pointers.Count());
    for (std::size_t rank = 0; rank < pointers_.size(); ++rank)
        if (positions_[rank] < count) pointers.Data()[positions_[rank]] = pointers_[rank];
}

} // namespace ostrel::services

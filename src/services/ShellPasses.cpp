#include "services/ShellPasses.h"

#include "services/SortKeys.h"

namespace ostrel::services {

namespace {

std::size_t RankOf(std::uint64_t item) { return static_cast<std::size_t>(item >> 32); }

} // namespace

ShellPasses::ShellPasses(const SortKeys& keys, std::size_t gap, bool up)
    : items_(static_cast<std::size_t>(keys.Count())), gap_(gap) {
    const std::size_t count = items_.size();
    for (std::size_t place = 0; place < count; ++place) {
        const std::size_t rank = up ? place : count - 1 - place;
        items_[keys.SlotAt(place)] =
            (static_cast<Item>(rank) << 32) | static_cast<std::uint32_t>(keys.PointerAt(place));
    }
}

void ShellPasses::RunTo(std::size_t gap) {
    while (gap_ > gap) {
        gap_ /= 2;
        Pass();
    }
}

void ShellPasses::Pass() {
    if (gap_ > 0 && gap_ < items_.size() && !PassByInsertion()) PassByRank();
}

/// Few moves are needed as a rule. False where there are too many of them; what was done by then stands.
bool ShellPasses::PassByInsertion() {
    std::size_t moves = 4 * items_.size();
    for (std::size_t i = gap_; i < items_.size(); ++i) {
        const Item item = items_[i];
        std::size_t to = i;
        for (; to >= gap_ && items_[to - gap_] > item && moves > 0; to -= gap_, --moves)
            items_[to] = items_[to - gap_];
        items_[to] = item;
        if (moves == 0) return false;
    }
    return true;
}

/// Deals the items out to their chains in the order of their ranks.
void ShellPasses::PassByRank() {
    struct Ranked {
        std::uint32_t pointer, chain;
    };
    std::vector<Ranked> ranked(items_.size());
    std::size_t chain = 0;
    for (const Item item : items_) {
        ranked[RankOf(item)] = {static_cast<std::uint32_t>(item), static_cast<std::uint32_t>(chain)};
        if (++chain == gap_) chain = 0;
    }
    std::vector<std::uint32_t> next(gap_);
    for (std::size_t i = 0; i < gap_; ++i) next[i] = static_cast<std::uint32_t>(i);
    for (std::size_t rank = 0; rank < ranked.size(); ++rank) {
        std::uint32_t& to = next[ranked[rank].chain];
        items_[to] = (static_cast<Item>(rank) << 32) | ranked[rank].pointer;
        to += static_cast<std::uint32_t>(gap_);
    }
}

void ShellPasses::Put(Array<Long>& pointers) const {
    // A listener may have changed the array since.
    const std::size_t count = std::min(items_.size(), static_cast<std::size_t>(pointers.Count()));
    for (std::size_t i = 0; i < count; ++i)
        pointers.Data()[i] = static_cast<Long>(static_cast<std::uint32_t>(items_[i]));
}

} // namespace ostrel::services

#include "ui/PieceColours.h"

#include <algorithm>

namespace ostrel {

std::vector<PieceColours::Change>::const_iterator PieceColours::FirstBehind(Long at) const {
    return std::upper_bound(changes_.begin(), changes_.end(), at,
                            [](Long place, const Change& change) { return place < change.at; });
}

Long PieceColours::At(Long at) const {
    const auto behind = FirstBehind(at);
    return behind == changes_.begin() ? Black : std::prev(behind)->colour;
}

void PieceColours::Splice(Long from, Long to, Long inserted, Long colour, Long size) {
    const Long before = from > 0 ? At(from - 1) : Black;
    const Long behind = At(to);
    Change fresh[2];
    std::ptrdiff_t count = 0;
    if (inserted > 0 && colour != before) fresh[count++] = {static_cast<std::uint16_t>(from), colour};
    if (to < size && behind != (inserted > 0 ? colour : before))
        fresh[count++] = {static_cast<std::uint16_t>(from + inserted), behind};

    const auto first = changes_.begin() + (FirstBehind(from - 1) - changes_.cbegin());
    const auto last = changes_.begin() + (FirstBehind(to) - changes_.cbegin());
    for (auto change = last; change != changes_.end(); ++change)
        change->at = static_cast<std::uint16_t>(change->at + inserted - (to - from));
    const std::ptrdiff_t shared = std::min(count, last - first);
    const auto next = std::copy_n(fresh, shared, first);
    if (shared < count)
        changes_.insert(next, fresh + shared, fresh + count);
    else
        changes_.erase(next, last);
}

PieceColours PieceColours::From(Long at) const {
    PieceColours result;
    if (const Long colour = At(at); colour != Black) result.changes_.push_back({0, colour});
    for (auto change = FirstBehind(at); change != changes_.end(); ++change)
        result.changes_.push_back({static_cast<std::uint16_t>(change->at - at), change->colour});
    return result;
}

void PieceColours::Truncate(Long at) { changes_.erase(FirstBehind(at - 1), changes_.end()); }

void PieceColours::Append(const PieceColours& next, Long size) {
    const Long last = changes_.empty() ? Black : changes_.back().colour;
    if (const Long first = next.At(0); first != last)
        changes_.push_back({static_cast<std::uint16_t>(size), first});
    for (auto change = next.FirstBehind(0); change != next.changes_.end(); ++change)
        changes_.push_back({static_cast<std::uint16_t>(change->at + size), change->colour});
}

} // namespace ostrel

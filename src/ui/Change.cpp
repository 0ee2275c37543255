#include "ui/Change.h"

#include <algorithm>

namespace ostrel {

void AddChange(std::vector<Change>& sum, const Change& change) {
    const auto first = std::partition_point(sum.begin(), sum.end(), [&](const Change& earlier) {
        return earlier.at + earlier.inserted < change.at;
    });
    auto behind = first;
    Long start = change.at, end = change.at + change.removed;
    Long growth = 0; // of the changes that become one with this
    for (; behind != sum.end() && behind->at <= change.at + change.removed; ++behind) {
        start = std::min(start, behind->at);
        end = std::max(end, behind->at + behind->inserted);
        growth += behind->inserted - behind->removed;
    }
    for (auto later = behind; later != sum.end(); ++later) later->at += change.inserted - change.removed;
    const Change whole{start, end - start - growth, end - start - change.removed + change.inserted};
    if (first == behind) {
        sum.insert(first, whole);
        return;
    }
    *first = whole;
    sum.erase(first + 1, behind);
}

} // namespace ostrel

#include "control/Bag.h"

namespace ostrel {

std::optional<PropertyValue> MapBag::Read(const Text& key) const {
    const auto place = places_.find(key);
    if (place == places_.end()) return std::nullopt;
    return entries_[place->second].value;
}

void MapBag::Write(const Text& key, PropertyValue value) {
    const auto [place, isNew] = places_.try_emplace(key, entries_.size());
    if (isNew)
        entries_.push_back({key, std::move(value)});
    else
        entries_[place->second].value = std::move(value);
}

void MapBag::Remove(const Text& key) {
    const auto place = places_.find(key);
    if (place == places_.end()) return;
    const std::size_t gone = place->second;
    places_.erase(place);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(gone));
    for (auto& [name, at] : places_)
        if (at > gone) --at;
}

void MapBag::Clear() {
    entries_.clear();
    places_.clear();
}

} // namespace ostrel

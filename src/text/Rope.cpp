#include "text/Rope.h"

#include "text/CodePage.h"

namespace ostrel {

void Rope::Append(Text text) {
    if (text.empty()) return;
    auto owner = std::make_shared<const Text>(std::move(text));
    const TextView view = *owner;
    Append(std::move(owner), view);
}

void Rope::Append(const Rope& other) {
    views_.reserve(views_.size() + other.views_.size());
    owners_.reserve(views_.capacity());
    for (std::size_t i = 0, count = other.views_.size(); i < count; ++i)
        Append(other.owners_[i], other.views_[i]);
}

void Rope::Append(std::shared_ptr<const void> owner, TextView view) {
    if (view.empty()) return;
    views_.push_back(view);
    owners_.push_back(std::move(owner));
    size_ += view.size();
}

void Rope::Clear() {
    views_.clear();
    owners_.clear();
    size_ = 0;
}

void Rope::TrimCrLf() {
    constexpr TextView blank = "\r\n ";
    std::size_t first = 0;
    for (; first < views_.size(); ++first) {
        const std::size_t start = views_[first].find_first_not_of(blank);
        size_ -= start == NotFound ? views_[first].size() : start;
        if (start == NotFound) continue;
        views_[first].remove_prefix(start);
        break;
    }
    views_.erase(views_.begin(), views_.begin() + static_cast<std::ptrdiff_t>(first));
    owners_.erase(owners_.begin(), owners_.begin() + static_cast<std::ptrdiff_t>(first));
    while (!views_.empty()) {
        const std::size_t end = views_.back().find_last_not_of(blank) + 1;
        size_ -= views_.back().size() - end;
        views_.back() = views_.back().substr(0, end);
        if (end > 0) break;
        views_.pop_back();
        owners_.pop_back();
    }
}

Text Rope::ToText() const {
    Text result;
    result.reserve(size_);
    for (const TextView& view : views_) result.append(view);
    return result;
}

} // namespace ostrel

#include "tables/CellStore.h"

#include <algorithm>

namespace ostrel::tables {

namespace {

/// Whether a browser would swallow a blank of the value.
bool HasLooseBlank(std::string_view value) {
    if (value.front() == ' ' || value.back() == ' ') return true;
    for (std::size_t i = value.find(' '); i != std::string_view::npos; i = value.find(' ', i + 1))
        if (value[i - 1] == ' ') return true;
    return false;
}

} // namespace

bool CellStore::NeedsEncoding(unsigned traits, TextEncoding encoding) const {
    if (markup_ == Markup::Html) return (traits & ~TraitBlank) != 0;
    if (traits & (TraitMarkup | TraitBreak)) return true;
    if ((traits & TraitHigh) && encoding == TextEncoding::Utf8) return true;
    return (traits & TraitBlank) && HasLooseBlank(Pending());
}

bool CellStore::Encode(TextEncoding encoding) {
    const bool encoded = EncodeCell(Pending(), encoding, markup_, plain_, html_);
    block_->Truncate(start_);
    if (!encoded) return false;
    if (plain_ == html_) {
        Append(html_.data(), html_.size());
        return true;
    }
    Append(plain_.data(), plain_.size());
    Append(html_.data(), html_.size());
    plainLength_ = static_cast<std::uint32_t>(plain_.size());
    return true;
}

void CellStore::MoveToNewBlock(std::size_t count) {
    const TextView pending = Pending();
    LargeBuffer fresh;
    limit_ = std::max(BlockSize, 2 * (pending.size() + count));
    fresh.Reserve(limit_);
    fresh.Append(pending);
    block_->Truncate(start_);
    blocks_.push_back(std::move(fresh));
    block_ = &blocks_.back();
    start_ = 0;
}

} // namespace ostrel::tables

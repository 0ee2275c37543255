#include "html/TagTable.h"

#include <functional>
#include <limits>

#include "html/Elements.h"
#include "services/TagExtraction.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

constexpr std::size_t FirstSlots = 64;

Long SpanOf(TextView tags) {
    const Text value = services::ExtractTagValue(tags, "COLSPAN");
    if (value.empty()) return 1;
    const Double number = LeadingNumber(value);
    // A number that no whole number can hold is passed over, so the span stays at 1.
    if (number >= Double{std::numeric_limits<Long>::max()} + 1.0) return 1;
    return number < 1 ? 1 : static_cast<Long>(number);
}

} // namespace

TagInfo DigestTags(TextView tags) {
    TagInfo info;
    info.text = tags;
    info.cellStart = CreateTableCellStart(tags);
    info.span = SpanOf(tags);
    info.spaced = info.span / 2 + info.span % 2;
    Text spacer;
    for (const TextView name : {"BGCOLOR", "HEIGHT"}) {
        const Text value = services::ExtractTagValue(tags, name);
        if (!value.empty()) AddHTMLTag(spacer, name, value);
    }
    if (!spacer.empty()) info.spacer = CreateTableCellStart(spacer);
    return info;
}

TagTable::TagTable() : slots_(FirstSlots) {}

const TagInfo* TagTable::Intern(TextView tags) {
    if (tags.empty()) return nullptr;
    if (last_ && last_->text == tags) return last_;
    const std::size_t hash = std::hash<TextView>{}(tags);
    std::size_t at = hash & (slots_.size() - 1);
    while (slots_[at].record) {
        if (slots_[at].hash == hash && slots_[at].record->text == tags) return last_ = slots_[at].record;
        at = (at + 1) & (slots_.size() - 1);
    }
    records_.push_back(DigestTags(tags));
    slots_[at] = {hash, &records_.back()};
    if (records_.size() * 2 > slots_.size()) Rehash();
    return last_ = &records_.back();
}

void TagTable::Clear() {
    records_.clear();
    slots_.assign(FirstSlots, {});
    last_ = nullptr;
}

void TagTable::Rehash() {
    std::vector<Slot> larger(slots_.size() * 2);
    for (const Slot& slot : slots_) {
        if (!slot.record) continue;
        std::size_t at = slot.hash & (larger.size() - 1);
        while (larger[at].record) at = (at + 1) & (larger.size() - 1);
        larger[at] = slot;
    }
    slots_ = std::move(larger);
}

} // namespace ostrel::html

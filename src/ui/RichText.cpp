#include "ui/RichText.h"

#include <algorithm>

namespace ostrel {

void RichText::Content(Text text) {
    text_ = std::move(text);
    start_ = length_ = 0;
    colours.clear();
    if (onChange) onChange();
}

Text RichText::SelText() const {
    return text_.substr(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_));
}

void RichText::Select(Long start, Long length) {
    const Long size = static_cast<Long>(text_.size());
    start_ = std::clamp<Long>(start, 0, size);
    length_ = std::clamp<Long>(length, 0, size - start_);
    if (onSelect) onSelect();
}

void RichText::ReplaceSelection(TextView text) {
    text_.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), text);
    start_ += static_cast<Long>(text.size());
    length_ = 0;
    if (onChange) onChange();
}

bool RichText::Enter(const UserValue& value) {
    const Text* given = std::get_if<Text>(&value);
    if (!given || locked) return false;
    Content(*given);
    return true;
}

Fields RichText::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"text", text_});
    fields.push_back({"locked", Flag(locked)});
    fields.push_back({"SelStart", start_});
    fields.push_back({"SelLength", length_});
    fields.push_back({"colours", colours});
    return fields;
}

} // namespace ostrel

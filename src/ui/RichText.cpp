#include "ui/RichText.h"

#include <algorithm>

#include "ui/Form.h"

namespace ostrel {

RichText::RichText(Form& form, std::string_view controlName)
    : Control(form, ControlKind::RichText, controlName) {
    form.RegisterMainText(*this);
}

bool RichText::Content(TextView text) {
    if (!buffer_.Assign(text)) return false;
    start_ = length_ = 0;
    Touch();
    if (onChange) onChange();
    return true;
}

void RichText::Select(Long start, Long length) {
    start_ = std::clamp<Long>(start, 0, buffer_.Size());
    length_ = std::clamp<Long>(length, 0, buffer_.Size() - start_);
    keys_ = Keys::None;
    Touch();
    if (onSelect) onSelect();
}

bool RichText::Replace(Long at, Long removed, TextView inserted) {
    if (!buffer_.Replace(at, removed, inserted)) return false;
    GoBehind(at, inserted, Keys::None);
    return true;
}

bool RichText::Type(Long at, Long removed, TextView inserted) {
    Keys keys = Keys::None;
    if (inserted.size() == 1) keys = Keys::Typing;
    if (removed == 1 && inserted.empty()) keys = Keys::Erasing;
    // The caret stands before what Delete erases, and behind what Backspace does. What replaces a selection
    // starts a run.
    const bool goesOn = keys != Keys::None && keys == keys_ && keysRevision_ == buffer_.Revision() &&
                        (at == start_ || at + removed == start_) && (inserted.empty() || removed == 0);
    if (goesOn) buffer_.ReopenStep();
    const bool done = buffer_.Replace(at, removed, inserted);
    if (goesOn) buffer_.EndStep();
    if (done) GoBehind(at, inserted, keys);
    return done;
}

void RichText::GoBehind(Long at, TextView inserted, Keys keys) {
    start_ = std::clamp<Long>(at + static_cast<Long>(inserted.size()), 0, buffer_.Size());
    length_ = 0;
    keys_ = keys;
    keysRevision_ = buffer_.Revision();
    Touch();
    if (onChange) onChange();
}

bool RichText::Undo() {
    const std::uint64_t revision = buffer_.Revision();
    if (!buffer_.Undo()) return false;
    GoBehindChange(revision);
    return true;
}

bool RichText::Redo() {
    const std::uint64_t revision = buffer_.Revision();
    if (!buffer_.Redo()) return false;
    GoBehindChange(revision);
    return true;
}

void RichText::GoBehindChange(std::uint64_t revision) {
    const std::vector<Change> changes = buffer_.Since(revision);
    // After more changes than the buffer remembers, the caret stays where it was.
    const bool known = !changes.empty() && changes.front().removed < EditBuffer::MostText;
    start_ = known ? changes.front().at + changes.front().inserted : std::min(start_, buffer_.Size());
    length_ = 0;
    keys_ = Keys::None;
    Touch();
    if (onChange) onChange();
}

void RichText::Colour(Long at, Long length, Long colour) {
    buffer_.Colour(at, length, colour);
    Touch();
}

bool RichText::Enter(const UserValue& value) {
    const Text* given = std::get_if<Text>(&value);
    return given && !locked && Content(*given);
}

Fields RichText::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"text", Content()});
    fields.push_back({"locked", Flag(bool(locked))});
    fields.push_back({"SelStart", start_});
    fields.push_back({"SelLength", length_});
    fields.push_back({"colours", buffer_.Colours(0, buffer_.Size())});
    return fields;
}

} // namespace ostrel

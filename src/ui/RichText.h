#pragma once

#include "ui/Control.h"
#include "ui/EditBuffer.h"

namespace ostrel {

/// The main text of an editor: a buffer with a selection. Positions count from 0; lines end in CR LF.
class RichText final : public Control {
public:
    RichText(Form& form, std::string_view controlName);

    Tracked<bool> locked{*this};
    Handler onChange;
    Handler onSelect;

    /// The text with its colours, its history and what has changed in it. A window reads it here, a piece at
    /// a time.
    const EditBuffer& Buffer() const { return buffer_; }
    /// A copy of the whole text.
    Text Content() const { return buffer_.Content(); }
    /// Replaces all, without a history; the selection goes to the start. Does nothing and returns false above
    /// `EditBuffer::MostText`.
    bool Content(TextView text);

    Long SelStart() const { return start_; }
    Long SelLength() const { return length_; }
    Text SelText() const { return buffer_.Copy(start_, length_); }
    /// Clipped to the text.
    void Select(Long start, Long length);

    /// Puts a text in the place of the selection. The caret stands behind it. Does nothing and returns false
    /// where the text would pass `EditBuffer::MostText`; so do the other edits.
    bool ReplaceSelection(TextView text) { return Replace(start_, length_, text); }
    bool Replace(Long at, Long removed, TextView inserted);
    /// As `Replace`, for a key: characters that are typed or erased one after another are one step to undo.
    bool Type(Long at, Long removed, TextView inserted);

    /// Edits up to the `EndStep` that belongs to it are one step to undo. Steps may be nested.
    void BeginStep() { buffer_.BeginStep(); }
    void EndStep() { buffer_.EndStep(); }
    /// Takes back the last step; the caret stands behind what came back. Does nothing and returns false where
    /// there is none or a step is going on.
    bool Undo();
    /// Makes the step again that was taken back last.
    bool Redo();

    /// Colours a part of the text; 0 is black. The colours move with the text.
    void Colour(Long at, Long length, Long colour);

    bool Enter(const UserValue& value) override;
    Fields Look() const override;

private:
    /// What the last edit was, so that a key may go on with it.
    enum class Keys { None, Typing, Erasing };

    void GoBehind(Long at, TextView inserted, Keys keys);
    void GoBehindChange(std::uint64_t revision);

    EditBuffer buffer_;
    Long start_ = 0;
    Long length_ = 0;
    Keys keys_ = Keys::None;
    std::uint64_t keysRevision_ = 0;
};

} // namespace ostrel

#pragma once

#include "ui/Control.h"

namespace ostrel {

/// The main text of an editor: a buffer with a selection and colours. Positions count from 0; lines end in CR
/// LF.
class RichText final : public Control {
public:
    RichText(Form& form, std::string_view controlName) : Control(form, ControlKind::RichText, controlName) {}

    bool locked = false;
    /// Runs of other colours than black, in order of their start.
    std::vector<ColourRun> colours;
    Handler onChange;
    Handler onSelect;

    const Text& Content() const { return text_; }
    /// Replaces all; the selection goes to the start.
    void Content(Text text);
    Long SelStart() const { return start_; }
    Long SelLength() const { return length_; }
    Text SelText() const;
    /// Clipped to the text.
    void Select(Long start, Long length);
    /// Puts a text in the place of the selection; the caret stands behind it.
    void ReplaceSelection(TextView text);

    bool Enter(const UserValue& value) override;
    Fields Look() const override;

private:
    Text text_;
    Long start_ = 0;
    Long length_ = 0;
};

} // namespace ostrel

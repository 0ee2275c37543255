#pragma once

#include "ui/Form.h"

namespace ostrel {

/// The word on the button that gives an answer; empty for `None`.
std::string_view ButtonWord(MessageAnswer answer);

/// A message with one to three buttons, which are named by their words.
class MessageBox final : public Form {
public:
    /// Unknown buttons are a single OK.
    MessageBox(MessageKind messageKind, Text message, Text title, MessageButtons buttons);

    const MessageKind kind;
    const Text text;

    /// A box that is closed by its close box gives its most harmless answer: No, else Cancel, else OK, else
    /// Abort.
    MessageAnswer Answer() const { return answer_; }
    FieldValue Look(std::string_view field) const override;

private:
    std::vector<std::unique_ptr<Button>> buttons_;
    MessageAnswer answer_ = MessageAnswer::None;
};

} // namespace ostrel

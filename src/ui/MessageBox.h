#pragma once

#include "ui/Form.h"

namespace ostrel {

/// A message with one to three buttons, which are named by their words. The most harmless is the one
/// to cancel by.
class MessageBox final : public Form {
public:
    /// Unknown buttons are a single OK.
    MessageBox(MessageKind messageKind, Text message, Text title, MessageButtons buttons);

    const MessageKind kind;
    const Text text;

    /// A box that is closed by its close box gives its most harmless answer: No, else Cancel, else OK, else
    /// Abort.
    MessageAnswer Answer() const { return answer_; }
    /// Shows it on a screen that has no message boxes of its own, and returns the answer.
    MessageAnswer Ask(Platform& platform);
    FieldValue Look(std::string_view field) const override;

private:
    std::vector<std::unique_ptr<Button>> buttons_;
    MessageAnswer answer_ = MessageAnswer::None;
};

} // namespace ostrel

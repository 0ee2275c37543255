#pragma once

#include "ui/Form.h"

namespace ostrel {

/// A message with one to three buttons, which are named by their words.
class MessageBox final : public Form {
public:
    /// `buttons`: 0 OK, 1 OK Cancel, 2 Abort Retry Ignore, 3 Yes No Cancel, 4 Yes No, 5 Retry Cancel.
    MessageBox(MessageKind messageKind, Text message, Text title, Long buttons);

    const MessageKind kind;
    const Text text;

    /// 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No. A box that is closed by its close box gives
    /// its most harmless one: No, else Cancel, else OK, else Abort.
    Long Answer() const { return answer_; }
    /// Shows it on a screen that has no message boxes of its own, and returns the answer.
    Long Ask(Platform& platform);
    FieldValue Look(std::string_view field) const override;

private:
    std::vector<std::unique_ptr<Button>> buttons_;
    Long answer_ = 0;
};

} // namespace ostrel

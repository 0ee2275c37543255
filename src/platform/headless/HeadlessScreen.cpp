#include "platform/headless/HeadlessScreen.h"

#include <algorithm>
#include <utility>

namespace ostrel {

void HeadlessScreen::ShowModal(Form& form) {
    if (user_) user_->Attend(form);
}

MessageAnswer HeadlessScreen::Message(MessageKind kind, const Text& text, const Text& title,
                                      MessageButtons buttons) {
    if (user_) return user_->Answer(kind, text, title, buttons);
    switch (buttons) {
    case MessageButtons::OkCancel:
    case MessageButtons::RetryCancel:
        return MessageAnswer::Cancel;
    case MessageButtons::AbortRetryIgnore:
        return MessageAnswer::Abort;
    case MessageButtons::YesNoCancel:
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

Extent HeadlessScreen::Measure(const Text& text) const {
    // A font whose every character is 6 by 13 pixels.
    Long lines = 1, columns = 0, widest = 0;
    for (const char c : text) {
        if (c == '\n') {
            ++lines;
            columns = 0;
        } else if (c != '\r') {
            widest = std::max(widest, ++columns);
        }
    }
    return {widest * 90, lines * 195};
}

Long HeadlessScreen::TakeBeeps() { return std::exchange(beeps_, 0); }

} // namespace ostrel

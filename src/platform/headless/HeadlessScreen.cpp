#include "platform/headless/HeadlessScreen.h"

#include <algorithm>
#include <utility>

namespace ostrel {

void HeadlessScreen::ShowModal(Form& form) {
    if (user_) user_->Attend(form);
}

Long HeadlessScreen::Message(MessageKind kind, const Text& text, const Text& title, Long buttons) {
    if (user_) return user_->Answer(kind, text, title, buttons);
    switch (buttons) {
    case 1:
    case 5:
        return 2;
    case 2:
        return 3;
    case 3:
    case 4:
        return 7;
    default:
        return 1;
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

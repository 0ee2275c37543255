#pragma once

#include "text/Text.h"

namespace ostrel {

class Form;

/// The icon of a message box.
enum class MessageKind { Error, Info, Warn, Query };

struct Bounds {
    Long left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Bounds&) const = default;
};

struct Extent {
    Long width = 0, height = 0;
};

/// What needs a screen. All lengths are twips, 1/1440 inch.
class Screen {
public:
    virtual ~Screen() = default;

    /// Shows the form until it is closed; everything pending runs meanwhile.
    virtual void ShowModal(Form& form) = 0;
    /// `buttons`: 0 OK, 1 OK Cancel, 2 Abort Retry Ignore, 3 Yes No Cancel, 4 Yes No, 5 Retry Cancel.
    /// Answers 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No.
    virtual Long Message(MessageKind kind, const Text& text, const Text& title, Long buttons) = 0;
    virtual Bounds Area() const = 0;
    /// Twips of one pixel.
    virtual Extent Pixel() const = 0;
    /// The room that a text takes in the font of labels.
    virtual Extent Measure(const Text& text) const = 0;
    virtual void Beep() = 0;
    /// 0 default, 1 arrow, 11 hourglass.
    virtual void MousePointer(Long shape) = 0;
};

} // namespace ostrel

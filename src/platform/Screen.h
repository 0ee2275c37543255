#pragma once

#include "text/Text.h"

namespace ostrel {

class Form;

/// The icon of a message box.
enum class MessageKind { Error, Info, Warn, Query };

/// The buttons of a message box, from left to right.
enum class MessageButtons : Long { Ok, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };

/// The button that ended a message box; `None` where no screen could show it.
enum class MessageAnswer : Long { None, Ok, Cancel, Abort, Retry, Ignore, Yes, No };

/// The pointer over the component. Other numbers are shapes that a host may choose for a child.
enum class PointerShape : Long { Default = 0, Hourglass = 11 };

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
    /// Shows a message box until one of its buttons is pressed; everything pending runs meanwhile. Unknown
    /// buttons are a single OK.
    virtual MessageAnswer Message(MessageKind kind, const Text& text, const Text& title,
                                  MessageButtons buttons) = 0;
    virtual Bounds Area() const = 0;
    /// Twips of one pixel.
    virtual Extent Pixel() const = 0;
    /// The room that a text takes in the font of labels.
    virtual Extent Measure(const Text& text) const = 0;
    virtual void Beep() = 0;
    virtual void MousePointer(PointerShape shape) = 0;
};

} // namespace ostrel

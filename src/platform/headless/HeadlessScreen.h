#pragma once

#include "platform/Screen.h"

namespace ostrel {

/// Who sits before a headless screen.
class ScreenUser {
public:
    virtual ~ScreenUser() = default;
    /// Works the form until it is closed.
    virtual void Attend(Form& form) = 0;
    virtual MessageAnswer Answer(MessageKind kind, const Text& text, const Text& title,
                                 MessageButtons buttons) = 0;
};

/// A screen without pixels. Without a user no form is shown, and a message box ends by its most harmless
/// answer.
class HeadlessScreen final : public Screen {
public:
    /// May be null. The caller keeps the user alive while it is set.
    void SeatUser(ScreenUser* user) { user_ = user; }

    void ShowModal(Form& form) override;
    MessageAnswer Message(MessageKind kind, const Text& text, const Text& title,
                          MessageButtons buttons) override;
    Bounds Area() const override { return area_; }
    void Area(const Bounds& area) { area_ = area; }
    Extent Pixel() const override { return {15, 15}; }
    Extent Measure(const Text& text) const override;
    void Beep() override { ++beeps_; }
    void MousePointer(PointerShape shape) override { pointer_ = shape; }

    PointerShape Pointer() const { return pointer_; }
    /// How often it beeped since the last asking.
    Long TakeBeeps();

private:
    ScreenUser* user_ = nullptr;
    Bounds area_{0, 0, 15360, 11520};
    Long beeps_ = 0;
    PointerShape pointer_ = PointerShape::Default;
};

} // namespace ostrel

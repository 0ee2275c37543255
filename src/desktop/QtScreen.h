#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/Screen.h"

namespace ostrel::desktop {

/// The screen of a widget. Dialogs and message boxes are children of the widget's window.
class QtScreen final : public Screen {
public:
    /// `widget` may go before the screen does; then dialogs have no owner.
    explicit QtScreen(QWidget& widget) : widget_(&widget) {}

    void ShowModal(Form& form) override;
    MessageAnswer Message(MessageKind kind, const Text& text, const Text& title,
                          MessageButtons buttons) override;
    Bounds Area() const override;
    Extent Pixel() const override;
    Extent Measure(const Text& text) const override;
    void Beep() override;
    void MousePointer(PointerShape shape) override;

private:
    QWidget* Window() const;

    QPointer<QWidget> widget_;
};

/// The cursor of one of the component's pointer shapes.
Qt::CursorShape CursorOf(Long shape);

} // namespace ostrel::desktop

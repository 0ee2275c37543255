#pragma once

#include <QObject>

namespace ostrel::test {

/// Messages, pointers, lengths and the clipboard of the desktop.
class QtScreenTest final : public QObject {
    Q_OBJECT

private slots:
    void MessagesAnswer();
    void MessagesLookLikeTheirKind();
    void MessagesBelongToTheDialogOnTop();
    void PointersHaveTheirShapes();
    void PointerOfTheWindow();
    void LengthsAreTwips();
    void ClipboardHasTheComponentsLines();
};

} // namespace ostrel::test

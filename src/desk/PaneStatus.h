#pragma once

#include <QLabel>
#include <QMainWindow>

#include "desk/Menus.h"
#include "desk/Work.h"

namespace ostrel::desk {

/// Shows the state of the pane in the frame of a window: its title, status line and loading time, and
/// whether it can go back and forward.
class PaneStatus final : public QObject {
    Q_OBJECT

public:
    PaneStatus(QMainWindow& window, desktop::OstrelWebHelpWidget& widget, const Work& work,
               const Actions& actions);

signals:
    /// A page has been loaded, with the address that the component knows it by.
    void PageShown(const QString& address);

private:
    void Listen();
    void ShowTitle();
    void ShowStatus(const Text& text);
    void PageLoaded(const Text& address);
    /// When the control has brought its buttons up to date.
    void UpdateWaysSoon();
    void UpdateWays();

    QMainWindow& window_;
    desktop::OstrelWebHelpWidget& widget_;
    const Work& work_;
    const Actions& actions_;
    QLabel seconds_;
    bool updating_ = false;
};

} // namespace ostrel::desk

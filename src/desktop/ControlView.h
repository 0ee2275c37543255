#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "control/Children.h"
#include "control/OstrelWebHelp.h"

namespace ostrel::desktop {

/// The widgets of the control's visual children. They show the control's model and keep no state of
/// their own; user input is passed to the control, which may change the model. Places come from
/// the model, in twips.
class ControlView final : public QObject {
public:
    /// The widgets are children of `surface`; the engine's view is placed in `PaneHost`.
    explicit ControlView(QWidget& surface);

    QWidget& PaneHost() { return *paneHost_; }
    /// Shows and operates this control from now on; null for no control.
    void Attach(OstrelWebHelp* web) { web_ = web; }
    /// Brings the widgets up to date. Costs little where nothing has changed.
    void Sync();
    /// Returns the widget of the child of that name, or null.
    QWidget* Find(const Text& name) const;
    /// A mouse event over a child, in that child's pixels; "" is the control itself.
    void Mouse(const QMouseEvent& event, const Text& child);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What a user button shows besides what every child has.
    struct UserButton {
        QToolButton* widget = nullptr;
        Text picture;
    };

    QToolButton* MakeToolbarButton(const Text& name);
    void MakeAddressLine();
    void MakeStopPanel();
    void SyncUserButtons(const Children& children);
    void SyncAddressLine(const Children& children);
    void Press(const Text& name);

    QWidget& surface_;
    OstrelWebHelp* web_ = nullptr;
    std::map<Text, QWidget*> widgets_;
    std::vector<UserButton> userButtons_;
    QWidget* browser_;
    QWidget* paneHost_;
    QWidget* toolbar_;
    QLabel* addressLabel_ = nullptr;
    QLineEdit* address_ = nullptr;
    QPushButton* go_ = nullptr;
    QGroupBox* stopPanel_ = nullptr;
    bool enabled_ = true; ///< the control's last value
    bool syncing_ = false;
};

} // namespace ostrel::desktop

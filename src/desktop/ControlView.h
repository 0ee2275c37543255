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

/// The widgets of the control's visual children. They show what the control's model says and hold nothing of
/// their own; what the user does to them goes to the control, which may change the model. Places come from
/// the model, in twips.
class ControlView final : public QObject {
public:
    /// The widgets lie in `surface`; the engine's view goes into `PaneHost`.
    explicit ControlView(QWidget& surface);

    QWidget& PaneHost() { return *paneHost_; }
    /// From now on shows and works this control; null for none.
    void Attach(OstrelWebHelp* web) { web_ = web; }
    /// Brings the widgets up to date. Costs little where nothing has changed.
    void Sync();
    /// The widget of the child of that name; null for none.
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
    bool enabled_ = true; ///< what the control said last
    bool syncing_ = false;
};

} // namespace ostrel::desktop

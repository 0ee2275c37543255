#pragma once

#include <QDialog>
#include <QTimer>

#include "desktop/FormLayout.h"
#include "ui/Form.h"

namespace ostrel::desktop {

/// Any form as a window. The form stays the truth: what the user does goes to its controls, and whatever they
/// or its timers change is shown. The window closes when the form is no longer open. Each widget has the name
/// of its control.
class FormDialog final : public QDialog, private UserActions {
public:
    /// The form is loaded, and outlives the dialog.
    FormDialog(Form& form, QWidget* parent);
    ~FormDialog() override;

    /// Shows what the form says now. It happens by itself after each action and before the loop of
    /// events waits.
    void Sync();
    /// The close box, which the form may refuse.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Act(Control& control, const std::function<void()>& action) override;
    void Carry(const std::function<void()>& action);
    void PressEnter();
    void SendKey(const QKeyEvent& event);
    void OpenMenu(const Menu& menu, QPoint place);

    void SyncWindow();
    void SyncFocus();
    void Place();
    void TakePlace();
    ShownControl* ShownAt(const QObject* widget) const;

    Form& form_;
    ShownControls controls_;
    QTimer sync_;
    bool syncing_ = false;
    Bounds place_; ///< of the form when it was last brought in line with the window
    Picture icon_;
};

} // namespace ostrel::desktop

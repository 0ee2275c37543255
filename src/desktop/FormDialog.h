#pragma once

#include <QDialog>
#include <QTimer>
#include <exception>
#include <optional>

#include "desktop/FormLayout.h"
#include "ui/Form.h"

namespace ostrel::desktop {

/// Any form as a window. The form stays the truth: what the user does goes to its controls, and whatever they
/// or its timers change is shown. The window closes when the form is no longer open. Each widget has the name
/// of its control.
class FormDialog final : public QDialog, private UserActions, private FormWindow {
public:
    /// The form is loaded, and outlives the dialog.
    FormDialog(Form& form, QWidget* parent);
    ~FormDialog() override;

    /// Shows what the form says now, where anything in it has changed. It happens by itself after each action
    /// and before the loop of events waits.
    void Sync();
    /// The close box, which the form may refuse.
    void reject() override;
    /// What a handler of the form has thrown, which ended the dialog; null for nothing.
    std::exception_ptr Failure() const { return failure_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Act(Control& control, const std::function<void()>& action) override;
    Bounds PlaceOf(const Control& control) const override;
    void Carry(const std::function<void()>& action);
    void PressEnter();
    void SendKey(const QKeyEvent& event);
    void OpenMenu(const Menu& menu, QPoint place);

    void SyncWindow();
    void SyncFocus();
    void Place();
    void TakePlace();
    ShownControl* ShownAt(const QObject* widget) const;
    ShownControl* ShownFor(const Control* control) const;

    Form& form_;
    ShownControls controls_;
    QTimer sync_;
    bool syncing_ = false;
    std::optional<std::uint64_t> revision_; ///< of the form that is shown
    Bounds place_;                          ///< of the form when it was last brought in line with the window
    ShownRevision caption_, icon_;
    std::exception_ptr failure_;
};

} // namespace ostrel::desktop

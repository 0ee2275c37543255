#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "control/OstrelWebHelp.h"

namespace ostrel::desktop {

class ControlView;
class QtPane;

/// The component on a form: one widget that owns a control and the desktop around it. A host sets properties,
/// calls members and listens through `Web()`; the widget shows the control's children and
/// passes on what the user does. The control runs on the thread of the widget.
///
/// While a long job of the control runs, events of the whole application are handled inside it; a host must
/// not delete the widget then (see `InYield`).
class OstrelWebHelpWidget final : public QWidget {
public:
    /// Makes a new control with default properties. `listener` receives every event from the first
    /// on.
    explicit OstrelWebHelpWidget(QWidget* parent = nullptr, EventList::AnyListener listener = {});
    ~OstrelWebHelpWidget() override;

    OstrelWebHelp& Web() { return *web_; }
    Platform& World() { return platform_; }
    QtPane& Pane() { return *pane_; }
    /// The widget of a visual child ("picToolbar", "cmdBack", "cmdButton(1)"), or null.
    QWidget* ChildWidget(const Text& name) const;
    /// Updates the widgets now. Called automatically before the event loop waits.
    void Sync();
    /// Whether the event loop is being run from inside the control.
    bool InYield() const;

    QSize sizeHint() const override { return {800, 600}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void AddShortcuts();

    Platform platform_;
    QtPane* pane_ = nullptr; ///< of the platform
    std::unique_ptr<OstrelWebHelp> web_;
    std::unique_ptr<ControlView> view_;
};

} // namespace ostrel::desktop

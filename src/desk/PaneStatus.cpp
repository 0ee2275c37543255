#include "desk/PaneStatus.h"

#include <QStatusBar>
#include <QTimer>
#include <QWebEngineView>

#include "desktop/QtPane.h"
#include "desktop/QtText.h"
#include "text/CodePage.h"

namespace ostrel::desk {

PaneStatus::PaneStatus(QMainWindow& window, desktop::OstrelWebHelpWidget& widget, const Work& work,
                       const Actions& actions)
    : window_(window), widget_(widget), work_(work), actions_(actions) {
    seconds_.setObjectName("seconds");
    seconds_.setToolTip("How long the page took to load");
    seconds_.setForegroundRole(QPalette::PlaceholderText);
    window.statusBar()->addPermanentWidget(&seconds_);
    // Back and Forward work while the toolbar is hidden, too.
    const auto press = [this](QAction* action, const char* button) {
        connect(action, &QAction::triggered, this, [this, button] { widget_.Web().ButtonClick(button); });
    };
    press(actions.back, "back");
    press(actions.forward, "forward");
    press(actions.home, "home");
    press(actions.refresh, "refresh");
    connect(actions.stop, &QAction::triggered, this, [this] {
        if (!work_.Running()) widget_.Web().Cancel();
    });
    connect(&work, &Work::Changed, this, &PaneStatus::UpdateWays);
    Listen();
    ShowTitle();
    UpdateWays();
}

void PaneStatus::Listen() {
    Events& events = widget_.Web().events;
    events.TitleChange.Listen([this](Text&) { ShowTitle(); });
    events.StatusTextChange.Listen([this](Text& text) { ShowStatus(text); });
    events.BeforeNavigate2.Listen([this](Text&, Text&, Flag&) {
        widget_.Web().ClockStart();
        UpdateWaysSoon();
    });
    events.DownloadTime.Listen([this](Text& seconds) { seconds_.setText(desktop::ToQt(seconds) + " s"); });
    events.DocumentComplete.Listen([this](Text& url, Text&) { PageLoaded(url); });
    events.HelpPageComplete.Listen([this](Text& url, Text&) { PageLoaded(url); });
    for (auto* state : {&events.BackState, &events.ForwardState})
        state->Listen([this](Flag&) { UpdateWaysSoon(); });
    for (auto* moment : {&events.DownloadBegin, &events.DownloadComplete})
        moment->Listen([this] { UpdateWaysSoon(); });
    events.RefreshComplete.Listen([this](Text&, Text&) { UpdateWaysSoon(); });
}

void PaneStatus::ShowTitle() {
    // The pane's own title has the characters that the code page lacks.
    const QString title = widget_.Pane().View().title();
    window_.setWindowTitle((title.isEmpty() ? QString() : title + " — ") + ApplicationTitle);
}

void PaneStatus::ShowStatus(const Text& text) {
    // Filter out the control's own lifecycle messages, and the engine's messages about unchanged pages.
    if (text.starts_with("Web Help - ") || work_.Running()) return;
    // What is cancelled has stopped by then.
    if (text == "Cancel...") return window_.statusBar()->showMessage("Stopped.");
    window_.statusBar()->showMessage(EqualText(text, "done") ? QString() : desktop::ToQt(text));
}

void PaneStatus::PageLoaded(const Text& address) {
    const Text seconds = widget_.Web().ClockStop();
    if (!seconds.empty()) seconds_.setText(desktop::ToQt(seconds) + " s");
    UpdateWaysSoon();
    emit PageShown(desktop::ToQt(address));
}

void PaneStatus::UpdateWaysSoon() {
    if (updating_) return;
    updating_ = true;
    QTimer::singleShot(0, this, [this] {
        updating_ = false;
        UpdateWays();
    });
}

void PaneStatus::UpdateWays() {
    OstrelWebHelp& web = widget_.Web();
    if (!web.Busy() && web.ToolbarButtonEnabled("stop") && !work_.Running()) {
        // What was vetoed, stopped or refused completes nothing, and there is nothing left to stop.
        web.ToolbarButtonEnabledSet("stop", false);
        web.ToolbarButtonEnabledSet("refresh", true);
        web.ClockStop();
    }
    for (const auto& [action, button] :
         {std::pair{actions_.back, "back"}, {actions_.forward, "forward"}, {actions_.refresh, "refresh"}})
        action->setEnabled(web.ToolbarButtonEnabled(button));
    actions_.stop->setEnabled(work_.Running() || web.ToolbarButtonEnabled("stop"));
}

} // namespace ostrel::desk

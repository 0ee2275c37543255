#include "control/PaneNavigator.h"

#include <utility>

namespace ostrel {

void PaneNavigator::Open(const Text& url) {
    clock_.Start();
    help_ = false;
    Navigate(url);
}

bool PaneNavigator::Load(const Text& url, Text& error) {
    if (url.empty()) {
        error = "No URL defined.";
        return false;
    }
    clock_.Start();
    help_ = false;
    if (url != LocationURL()) Navigate(url);
    return true;
}

bool PaneNavigator::LoadToTarget(const Text& url, const Text& target, Text& error) {
    if (url.empty())
        error = "No URL defined.";
    else if (target.empty())
        error = "No Target defined.";
    if (!error.empty()) return false;
    Navigate(url, target);
    return true;
}

void PaneNavigator::OpenHelpPage(const Text& location) {
    clock_.Start();
    help_ = true;
    events_.HelpPageBegin.Tell(location);
    Navigate(location);
}

void PaneNavigator::Refresh(RefreshLevel level) {
    Pane().Refresh2(level);
    EnableStop(true, false);
    refreshing_ = true;
}

void PaneNavigator::Cancel() {
    events_.StatusTextChange.Tell("Cancel...");
    Pane().Stop();
    run_.StopRequested = true;
}

void PaneNavigator::Began() {
    EnableStop(true, false);
    refreshing_ = false;
}

void PaneNavigator::Completed() {
    EnableStop(Pane().Busy(), true);
    refreshing_ = false;
}

bool PaneNavigator::EndRefresh() {
    if (!std::exchange(refreshing_, false)) return false;
    EnableStop(false, true);
    return true;
}

void PaneNavigator::EnableStop(bool stop, bool refresh) {
    children_.Default(ActionStop).enabled = stop;
    children_.Default(ActionRefresh).enabled = refresh;
}

} // namespace ostrel

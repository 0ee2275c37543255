#pragma once

#include "control/Children.h"
#include "control/LoadClock.h"
#include "platform/Context.h"

namespace ostrel {

/// Steers the browser pane, and remembers what it has asked for: whether pages complete as help pages, and
/// whether a refresh waits for its end. The Stop and Refresh buttons of the toolbar follow, of which one can
/// be pressed while something loads and the other while nothing does.
class PaneNavigator final : public Navigator {
public:
    PaneNavigator(Events& events, Platform& platform, RunFlags& run, Children& children, LoadClock& clock)
        : events_(events), platform_(platform), run_(run), children_(children), clock_(clock) {}

    void Navigate(const Text& url) override { Pane().Navigate(url); }
    Text LocationURL() const override { return Pane().LocationURL(); }

    /// Loads a URL into the frame or window of that name.
    void Navigate(const Text& url, const Text& target) { Pane().Navigate(url, target); }
    /// Loads a page that is no help page, and starts the load clock.
    void Open(const Text& url);
    /// As `Open`, but a page that is on view is not loaded again. False with a sentence for an empty URL.
    bool Load(const Text& url, Text& error);
    /// As `Navigate`. False with a sentence where URL or target is empty.
    bool LoadToTarget(const Text& url, const Text& target, Text& error);
    /// Loads a help page, and starts the load clock. Later pages complete as help pages until another load.
    void OpenHelpPage(const Text& location);
    /// Loads the page on view again.
    void Refresh(RefreshLevel level);
    /// Stops the pane, and the long loops that look at a stop request.
    void Cancel();
    /// Gives the focus to the page.
    void Focus() { Pane().Focus(); }
    /// Whether a page that completes now is a help page.
    bool LoadsHelp() const { return help_; }

    // What the pane reports.

    /// A load begins.
    void Began();
    /// A load is complete.
    void Completed();
    /// Ends a refresh. False where none runs.
    bool EndRefresh();

private:
    BrowserPane& Pane() const { return *platform_.pane; }
    void EnableStop(bool stop, bool refresh);

    Events& events_;
    Platform& platform_;
    RunFlags& run_;
    Children& children_;
    LoadClock& clock_;
    bool help_ = false;
    bool refreshing_ = false;
};

} // namespace ostrel

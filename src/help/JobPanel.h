#pragma once

#include "text/Text.h"

namespace ostrel::help {

/// Where a long job shows how far it is, with a button that stops it. This one is a panel that nobody sees.
/// Nothing here throws.
class JobPanel {
public:
    virtual ~JobPanel() = default;

    /// Shows the panel without a gauge and with a heading, and clears the stop flags that the job then reads.
    virtual void Show(const Text& /*heading*/) {}
    /// Puts the name of the file that the job is at in the place of the heading.
    virtual void ShowItem(const Text& /*name*/) {}
    /// Shows the empty track of the gauge.
    virtual void ResetGauge() {}
    /// Fills the gauge to a fraction of its track, from 0 to 1.
    virtual void ShowGauge(Single /*fraction*/) {}
    /// Hides the panel. The stop flags stay as the user left them.
    virtual void Hide() {}
};

/// Shows a panel while it lives, so that every way out of a job hides it.
class PanelShown {
public:
    PanelShown(JobPanel& panel, const Text& heading) : panel_(panel) { panel_.Show(heading); }
    ~PanelShown() {
        if (!kept_) panel_.Hide();
    }
    PanelShown(const PanelShown&) = delete;
    PanelShown& operator=(const PanelShown&) = delete;

    /// Leaves the panel to the job that follows.
    void Keep() { kept_ = true; }

private:
    JobPanel& panel_;
    bool kept_ = false;
};

} // namespace ostrel::help

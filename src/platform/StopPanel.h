#pragma once

#include "text/Text.h"

namespace ostrel {

/// Shows the progress of a long job, with a button that stops it. The base shows nothing; the panel of the
/// control is a subclass.
class StopPanel {
public:
    virtual ~StopPanel() = default;

    /// Shows the panel without a gauge and with a heading over its Stop button, and clears the stop flags
    /// that the job then reads.
    virtual void Show(const Text& /*heading*/) {}
    /// Puts the name of the file that the job is at in the place of the heading.
    virtual void ShowItem(const Text& /*name*/) {}
    /// Hides the panel. The stop flags stay as the user left them.
    virtual void Hide() {}
    /// Shows the empty track of the gauge.
    virtual void ResetGauge() {}
    /// Fills the gauge to a fraction of its track, from 0 to 1.
    virtual void ShowGauge(Single /*fraction*/) {}

    /// Returns the panel of a context that has none of its own, which shows nothing.
    static StopPanel& None() {
        static StopPanel none;
        return none;
    }
};

/// Shows a panel while it lives, so that every way out of a job hides it.
class StopPanelShown {
public:
    StopPanelShown(StopPanel& panel, const Text& heading) : panel_(panel) { panel_.Show(heading); }
    ~StopPanelShown() { panel_.Hide(); }
    StopPanelShown(const StopPanelShown&) = delete;
    StopPanelShown& operator=(const StopPanelShown&) = delete;

private:
    StopPanel& panel_;
};

} // namespace ostrel

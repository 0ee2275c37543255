#pragma once

#include "text/Text.h"

namespace ostrel {

/// Where a long job shows how far it is, with a button that stops it. This one is a panel that nobody sees;
/// the control has one that its user sees.
class StopPanel {
public:
    virtual ~StopPanel() = default;

    /// Shows the panel without a gauge and with a heading over its Stop button, and clears the stop flags
    /// that the job then reads.
    virtual void Show(const Text& /*heading*/) {}
    /// Hides the panel. The stop flags stay as the user left them.
    virtual void Hide() {}
    /// Shows the empty track of the gauge.
    virtual void ResetGauge() {}
    /// Fills the gauge to a fraction of its track, from 0 to 1.
    virtual void ShowGauge(Single /*fraction*/) {}

    /// The panel of a context that has none of its own.
    static StopPanel& None() {
        static StopPanel none;
        return none;
    }
};

} // namespace ostrel

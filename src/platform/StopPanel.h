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

} // namespace ostrel

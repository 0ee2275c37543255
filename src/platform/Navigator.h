#pragma once

#include "text/Text.h"

namespace ostrel {

/// The way of a job to the page on view. This one leads nowhere; the control has one that steers its browser
/// pane.
class Navigator {
public:
    virtual ~Navigator() = default;

    /// Asks the pane for a URL or a local path. Its end is told by events.
    virtual void Navigate(const Text& /*url*/) {}
    /// Returns the address of the page on view, a local page by the path that was loaded.
    virtual Text LocationURL() const { return {}; }

    /// The navigator of a context that has none of its own.
    static Navigator& None() {
        static Navigator none;
        return none;
    }
};

} // namespace ostrel

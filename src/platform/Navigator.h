#pragma once

#include "text/Text.h"

namespace ostrel {

/// Lets a job load pages into the browser pane. The base does nothing; the navigator of the control is a
/// subclass.
class Navigator {
public:
    virtual ~Navigator() = default;

    /// Starts to load a URL or a local path. Events report the end.
    virtual void Navigate(const Text& /*url*/) {}
    /// Returns the address of the page on view, a local page by the path that was loaded.
    virtual Text LocationURL() const { return {}; }

    /// Returns the navigator of a context that has none of its own, which does nothing.
    static Navigator& None() {
        static Navigator none;
        return none;
    }
};

} // namespace ostrel

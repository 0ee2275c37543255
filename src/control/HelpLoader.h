#pragma once

#include <memory>

#include "control/Guard.h"
#include "control/PaneNavigator.h"

namespace ostrel {

struct State;

/// Loads help pages into the browser pane: pages of the help directory, and pages that are built from three
/// parts. A load waits for `HelpDelay` milliseconds, in which a later one replaces it.
class HelpLoader {
public:
    HelpLoader(Guard& guard, Context& context, State& state, PaneNavigator& navigator);

    /// Sets up the load of a page by its name. False with a sentence where the name is empty or holds a
    /// slash, or its directory is not defined or does not exist.
    bool Load(const Text& page, Text& error);
    /// Builds a page of `HelpPart1` to `HelpPart3` in the next work file and sets up its load. False with a
    /// sentence where the parts are empty, the directory is missing or the file cannot be written.
    bool LoadInternal(Text& error);
    /// Sets up the load of a location, which replaces one that waits.
    void Arm(const Text& location);
    /// Starts a load that waits at once; does nothing where none waits.
    void LoadNow();
    /// Whether the local help directory holds a file of that name.
    bool Exists(const Text& page) const;

    /// The location that waits to be loaded; empty where none does.
    const Text& Next() const { return next_; }
    /// The help page that was last completed; empty where there is none.
    const Text& Current() const { return current_; }
    /// The HTML of the page that was last built of parts.
    const Text& Internal() const { return internal_; }

    /// A help page is complete.
    void Completed(const Text& location) { current_ = location; }
    /// Lets the next load go through even if its page is on view.
    void ForgetCurrent() { current_.clear(); }

private:
    bool Locate(const Text& page, Text& location, Text& error) const;
    void Tick();

    Guard& guard_;
    Context& context_;
    State& state_;
    PaneNavigator& navigator_;
    std::unique_ptr<Timer> timer_;
    Text next_;
    Text current_;
    Text internal_;
};

} // namespace ostrel

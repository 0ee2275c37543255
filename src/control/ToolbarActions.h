#pragma once

#include "control/ToolbarAction.h"

namespace ostrel {

class FrameDialogs;
class HelpLoader;
class OstrelWebHelp;
class PaneNavigator;
struct State;

/// What the actions of the toolbar work on. Most do what the host could do too, by a public member.
struct ToolbarScope {
    OstrelWebHelp& web;
    PaneNavigator& navigator;
    HelpLoader& help;
    FrameDialogs& dialogs;
    const State& state;
};

/// Does what the default buttons of the toolbar are for.
class ToolbarActions {
public:
    explicit ToolbarActions(const ToolbarScope& scope) : scope_(scope) {}

    /// Runs an action as a press of its button: `ToolbarClick` is raised first and may drop it, and the focus
    /// goes to the page.
    void Press(ToolbarAction action);
    /// Runs an action alone, after which the focus goes to the page.
    void Run(ToolbarAction action);

private:
    ToolbarScope scope_;
};

} // namespace ostrel

#pragma once

#include "control/ControlLayout.h"
#include "control/ControlStopPanel.h"
#include "control/FrameDialogs.h"
#include "control/HelpLoader.h"
#include "control/HelpSearch.h"
#include "control/LoadClock.h"
#include "control/PageScopeOf.h"
#include "control/PaneEvents.h"
#include "control/PaneNavigator.h"
#include "control/State.h"
#include "control/ToolbarActions.h"
#include "control/ToolbarButtons.h"
#include "control/UserInput.h"

namespace ostrel {

class OstrelWebHelp;

/// All that lies behind one control. Each part owns its state and takes the parts that it needs by reference,
/// so they are declared from the ground up.
struct ControlParts {
    ControlParts(OstrelWebHelp& web, Events& events, Platform& platform)
        : buttons(children), layout(guard, events, platform, state, children, buttons),
          clock(guard, events, platform), navigator(events, platform, run, children, clock),
          stopPanel(platform, run, children, layout), context{events, platform, run, stopPanel, navigator},
          helpLoader(guard, context, state, navigator), search(context, state, navigator, helpLoader),
          dialogs(context, state, children, navigator), actions({web, navigator, helpLoader, dialogs, state}),
          input(events, platform, state, children, buttons, actions, navigator, stopPanel),
          paneEvents(guard, events, platform, children, clock, navigator, helpLoader) {}

    BrowserPane& Pane() const { return *context.platform.pane; }
    Files& Disk() const { return *context.platform.files; }
    /// What the builders of pages reach.
    html::PageScope PageScope() { return PageScopeOf(context, state); }

    Guard guard;
    State state;
    RunFlags run;
    Children children;
    ToolbarButtons buttons;
    ControlLayout layout;
    LoadClock clock;
    PaneNavigator navigator;
    ControlStopPanel stopPanel;
    Context context;
    HelpLoader helpLoader;
    HelpSearch search;
    FrameDialogs dialogs;
    ToolbarActions actions;
    UserInput input;
    PaneEvents paneEvents;
    bool terminated = false;
};

} // namespace ostrel

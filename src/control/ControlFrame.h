#pragma once

#include <memory>

#include "control/Children.h"
#include "platform/BrowserPane.h"
#include "platform/Clock.h"

namespace ostrel {

/// A button that the host has added; it is `cmdButton` of the same number.
struct UserButton {
    Text name;
    Text bitmap;
    Text tip;
};

/// The running load of a help page.
struct HelpLoad {
    /// What the armed timer will load; empty when no load is armed.
    Text HelpPageNext;
    /// The help page that was last completed.
    Text HelpPageCurrent;
    /// HTML of the last internal page.
    Text HelpPageText;
    /// Loads complete as help pages. Stays until a load that is none is started.
    bool HelpNavigation = false;
};

/// What the events of the pane are measured against.
struct PaneWatch {
    Long LastProgress = -2;
    Long LastProgressMax = -1;
    Text LastStatusText;
    Text LastTitleText;
    /// A refresh runs and waits for the status text "done".
    bool PendingRefresh = false;
    bool PrintPending = false;
};

/// Measures how long a page takes to load.
struct LoadClock {
    bool ClockRunning = false;
    std::uint32_t ClockStartTicks = 0;
    Long ClockTenths = 0;
};

/// The numbers of the last layout; 0 after one with the strip hidden.
struct ToolbarNumbers {
    Long ButtonTop = 0;
    Long ButtonHeightUsed = 0;
    Long ButtonWidthUsed = 0;
};

/// What the control keeps of itself as a thing on a form: children, buttons, timers and the running load.
struct ControlFrame {
    Children children;
    std::vector<UserButton> buttons;
    ToolbarNumbers toolbar;
    HelpLoad help;
    PaneWatch pane;
    LoadClock clock;
    /// Room kept for the stop panel, in twips.
    Long StopPanelGap = 0;
    std::unique_ptr<Timer> tmrHelp;
    std::unique_ptr<Timer> tmrClock;
    std::unique_ptr<BrowserSink> listener;
};

} // namespace ostrel

#pragma once

#include "platform/BrowserPane.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/NullRoles.h"
#include "platform/Role.h"
#include "platform/Screen.h"
#include "platform/SettingsStore.h"
#include "platform/Transfers.h"

namespace ostrel {

/// All that the component asks of the system. The program makes it and owns it; it outlives every control.
/// A role that the program leaves out is a null object, which reports failure where the role can.
struct Platform {
    Role<Clock> clock;
    Role<Files> files;
    Role<SettingsStore> settings;
    Role<Screen> screen;
    Role<Clipboard> clipboard;
    Role<BrowserPane> pane;
    Role<Transfers> transfers;
};

} // namespace ostrel

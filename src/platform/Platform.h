#pragma once

#include <memory>

#include "platform/BrowserPane.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Screen.h"
#include "platform/SettingsStore.h"

namespace ostrel {

/// All that the component asks of the system. The program makes it and owns it; it outlives every control.
/// A missing pane (null) leaves every browser member without effect.
struct Platform {
    std::unique_ptr<Clock> clock;
    std::unique_ptr<Files> files;
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<Screen> screen;
    std::unique_ptr<Clipboard> clipboard;
    std::unique_ptr<BrowserPane> pane;
};

} // namespace ostrel

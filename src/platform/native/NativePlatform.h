#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/SettingsStore.h"
#include "platform/Transfers.h"

namespace ostrel {

// The roles that need no screen, on the system that the program runs on.

std::unique_ptr<Clock> MakeNativeClock();
std::unique_ptr<Files> MakeNativeFiles();
/// The settings of the user below XDG_CONFIG_HOME, or else HOME, read at the time of the call.
std::unique_ptr<SettingsStore> MakeNativeSettings();
std::unique_ptr<Transfers> MakeNativeTransfers();

} // namespace ostrel

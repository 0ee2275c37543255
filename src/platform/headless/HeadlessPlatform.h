#pragma once

#include "platform/Platform.h"
#include "platform/headless/HeadlessClipboard.h"
#include "platform/headless/HeadlessPane.h"
#include "platform/headless/HeadlessScreen.h"
#include "platform/headless/HeadlessTransfers.h"
#include "platform/headless/VirtualClock.h"

namespace ostrel {

/// A platform without a screen: the system's files and settings, and everything else within the process.
struct HeadlessPlatform : Platform {
    HeadlessPane& Pane() const { return static_cast<HeadlessPane&>(*pane); }
    HeadlessScreen& Display() const { return static_cast<HeadlessScreen&>(*screen); }
    HeadlessTransfers& Network() const { return static_cast<HeadlessTransfers&>(*transfers); }
    /// Null where time is real.
    VirtualClock* VirtualTime() const { return dynamic_cast<VirtualClock*>(clock.get()); }
};

HeadlessPlatform MakeHeadlessPlatform(bool virtualClock);
/// Uses the caller's files and settings; either may be null.
HeadlessPlatform MakeHeadlessPlatform(bool virtualClock, std::unique_ptr<Files> files,
                                      std::unique_ptr<SettingsStore> settings = nullptr);

} // namespace ostrel

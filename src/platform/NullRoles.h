#pragma once

#include "platform/BrowserPane.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Role.h"
#include "platform/Screen.h"
#include "platform/SettingsStore.h"
#include "platform/Transfers.h"

namespace ostrel {

/// Time that does not pass: nothing comes due, posted work is dropped, and waits end at once. A sleep with
/// sources still waits for them.
template <>
Clock& NullObject<Clock>();
/// No file and no directory; every operation fails with error 68, "Device unavailable."
template <>
Files& NullObject<Files>();
/// No setting is found, and none is stored: "Device unavailable."
template <>
SettingsStore& NullObject<SettingsStore>();
/// Nobody sees a form or answers a message.
template <>
Screen& NullObject<Screen>();
/// Always empty.
template <>
Clipboard& NullObject<Clipboard>();
/// Shows no page and raises no event.
template <>
BrowserPane& NullObject<BrowserPane>();
/// Never connected.
template <>
Transfers& NullObject<Transfers>();

} // namespace ostrel

#include "platform/native/NativePlatform.h"

#include "platform/native/NativeClock.h"
#include "platform/native/NativeFiles.h"
#include "platform/native/NativeSettings.h"

namespace ostrel {

std::unique_ptr<Clock> MakeNativeClock() { return std::make_unique<NativeClock>(); }

std::unique_ptr<Files> MakeNativeFiles() { return std::make_unique<NativeFiles>(); }

std::unique_ptr<SettingsStore> MakeNativeSettings() {
    return std::make_unique<NativeSettings>(UserConfigDirectory());
}

} // namespace ostrel

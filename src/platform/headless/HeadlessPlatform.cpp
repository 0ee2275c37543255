#include "platform/headless/HeadlessPlatform.h"

#include "platform/native/NativePlatform.h"

namespace ostrel {

HeadlessPlatform MakeHeadlessPlatform(bool virtualClock) {
    return MakeHeadlessPlatform(virtualClock, MakeNativeFiles(), MakeNativeSettings());
}

HeadlessPlatform MakeHeadlessPlatform(bool virtualClock, std::unique_ptr<Files> files,
                                      std::unique_ptr<SettingsStore> settings) {
    HeadlessPlatform platform;
    platform.files = std::move(files);
    platform.settings = std::move(settings);
    if (virtualClock)
        platform.clock = std::make_unique<VirtualClock>();
    else
        platform.clock = MakeNativeClock();
    platform.screen = std::make_unique<HeadlessScreen>();
    platform.clipboard = std::make_unique<HeadlessClipboard>();
    platform.transfers = std::make_unique<HeadlessTransfers>(MakeNativeTransfers());
    platform.pane = std::make_unique<HeadlessPane>(*platform.clock, *platform.files);
    return platform;
}

} // namespace ostrel

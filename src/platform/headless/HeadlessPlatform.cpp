#include "platform/headless/HeadlessPlatform.h"

#include "platform/headless/RealClock.h"

namespace ostrel {

HeadlessPlatform MakeHeadlessPlatform(bool virtualClock) {
    HeadlessPlatform platform;
    if (virtualClock)
        platform.clock = std::make_unique<VirtualClock>();
    else
        platform.clock = std::make_unique<RealClock>();
    platform.screen = std::make_unique<HeadlessScreen>();
    platform.clipboard = std::make_unique<HeadlessClipboard>();
    if (platform.files) platform.pane = std::make_unique<HeadlessPane>(*platform.clock, *platform.files);
    return platform;
}

} // namespace ostrel

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "bridge/Bridge.h"
#include "support/TestPlatform.h"

namespace {

/// Files and settings in memory, so that no input touches the system.
ostrel::HeadlessPlatform MakePlatform() {
    using namespace ostrel;
    HeadlessPlatform platform;
    platform.clock = std::make_unique<VirtualClock>();
    platform.files = std::make_unique<test::MemoryFiles>();
    platform.settings = std::make_unique<test::MemorySettings>();
    platform.screen = std::make_unique<HeadlessScreen>();
    platform.clipboard = std::make_unique<HeadlessClipboard>();
    platform.pane = std::make_unique<HeadlessPane>(*platform.clock, *platform.files);
    return platform;
}

} // namespace

/// Lines of requests: each has an answer, and the answer is one line of JSON.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    ostrel::HeadlessPlatform platform = MakePlatform();
    ostrel::bridge::Bridge bridge(platform);
    while (!input.empty()) {
        const std::string_view line = input.substr(0, input.find('\n'));
        input.remove_prefix(std::min(input.size(), line.size() + 1));
        const std::string answer = bridge.Answer(line);
        if (!ostrel::bridge::Json::accept(answer) || answer.find('\n') != std::string::npos) std::abort();
    }
    return 0;
}

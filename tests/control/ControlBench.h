#pragma once

#include "control/Children.h"
#include "control/OstrelWebHelp.h"
#include "support/EventLine.h"
#include "support/MemoryFiles.h"
#include "ui/ScriptedUser.h"

namespace ostrel::test {

/// A control on a headless platform with virtual time and files in memory, whose events are written down.
class ControlBench {
public:
    enum class Start { Bare, Init };

    explicit ControlBench(Start start = Start::Init)
        : platform(MakeHeadlessPlatform(true, std::make_unique<MemoryFiles>())), user(platform),
          web(std::make_unique<OstrelWebHelp>(
              platform, [this](EventBase& event, std::span<const ArgumentRef> arguments) {
                  log.push_back(EventLine(event, arguments));
              })) {
        web->PropertyChanged = [this](const Text& name) { changed.push_back(name); };
        if (start == Start::Init) web->InitProperties();
    }

    MemoryFiles& Files() { return static_cast<MemoryFiles&>(*platform.files); }
    HeadlessPane& Pane() { return platform.Pane(); }
    VirtualClock& Clock() { return *platform.VirtualTime(); }

    /// Lets the construction's own page load and forgets what was told so far.
    void Settle() {
        Clock().Advance(0);
        log.clear();
        changed.clear();
        Pane().TakeLog();
    }
    /// All events since the last taking, one a line.
    std::vector<Text> Take() { return std::exchange(log, {}); }

    HeadlessPlatform platform;
    ScriptedUser user;
    std::vector<Text> log;
    std::vector<Text> changed;
    std::unique_ptr<OstrelWebHelp> web;
};

using Lines = std::vector<Text>;

} // namespace ostrel::test

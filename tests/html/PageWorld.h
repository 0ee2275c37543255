#pragma once

#include <vector>

#include "html/PageScope.h"
#include "support/MemoryFiles.h"
#include "text/NumberText.h"

namespace ostrel::test {

/// The state around one page, files in memory below `C:\pages`, and a log of all events.
struct PageWorld {
    PageWorld() {
        auto memory = std::make_unique<MemoryFiles>();
        files = memory.get();
        files->directories.insert("C:\\pages");
        platform.files = std::move(memory);
        events.ListenToAll([this](EventBase& event, std::span<const ArgumentRef> arguments) {
            Text line(event.Name());
            for (const ArgumentRef& argument : arguments) line += " " + Shown(argument);
            log.push_back(line);
        });
    }

    Text Content(const Text& path) const { return files->files[path]; }

    Events events;
    Platform platform;
    MemoryFiles* files;
    RunFlags run;
    Context context{events, platform, run};
    HelpProperties help;
    PageProperties page;
    PageFonts fonts;
    ServiceProperties service;
    html::PageScope scope{context, help, page, fonts, service};
    std::vector<Text> log;

private:
    static Text Shown(const ArgumentRef& argument) {
        if (const auto* text = std::get_if<Text*>(&argument)) return **text;
        if (const auto* flag = std::get_if<Flag*>(&argument)) return **flag ? "True" : "False";
        if (const auto* number = std::get_if<Long*>(&argument)) return FromLong(**number);
        return "?";
    }
};

} // namespace ostrel::test

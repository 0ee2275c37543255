#pragma once

#include <map>
#include <tuple>
#include <vector>

#include "platform/Context.h"
#include "platform/headless/HeadlessScreen.h"
#include "platform/headless/VirtualClock.h"
#include "support/MemoryFiles.h"
#include "text/CodePage.h"

namespace ostrel::test {

/// Settings that live in memory. With `failure` set nothing is written and that sentence comes back.
class MemorySettings : public SettingsStore {
public:
    using Name = std::tuple<Text, Text, Text>;
    std::map<Name, Text> settings;
    std::map<Text, Variant> keys; ///< direct ones, by name alone
    Text failure;

    std::optional<Text> Get(const Text& application, const Text& section, const Text& key) override {
        const auto hit = settings.find(Of(application, section, key));
        return hit == settings.end() ? std::nullopt : std::optional(hit->second);
    }
    Text Save(const Text& application, const Text& section, const Text& key, const Text& value) override {
        if (failure.empty()) settings[Of(application, section, key)] = value;
        return failure;
    }
    Text DeleteKey(const Text& application, const Text& section, const Text& key) override {
        if (failure.empty()) settings.erase(Of(application, section, key));
        return failure;
    }
    Text DeleteSection(const Text& application, const Text& section) override {
        std::erase_if(settings, [&](const auto& entry) {
            return failure.empty() && std::get<0>(entry.first) == Upper(application) &&
                   std::get<1>(entry.first) == Upper(section);
        });
        return failure;
    }
    std::optional<Variant> Query(Long, const Text&, const Text& name) override {
        const auto hit = keys.find(name);
        return hit == keys.end() ? std::nullopt : std::optional(hit->second);
    }
    Text Set(Long, const Text&, const Text& name, const Variant& value) override {
        if (failure.empty()) keys[name] = value;
        return failure;
    }

private:
    static Name Of(const Text& application, const Text& section, const Text& key) {
        return {Upper(application), Upper(section), Upper(key)};
    }
};

/// A platform of memory and virtual time, with somebody before its screen who answers message boxes.
struct TestPlatform : Platform, ScreenUser {
    Events events;
    RunFlags run;
    Context context{events, *this, run};
    /// What was asked, "TITLE: TEXT", and the answer to give.
    std::vector<Text> questions;
    MessageAnswer answer = MessageAnswer::Yes;

    TestPlatform() {
        files = std::make_unique<MemoryFiles>();
        settings = std::make_unique<MemorySettings>();
        clock = std::make_unique<VirtualClock>();
        auto display = std::make_unique<HeadlessScreen>();
        display->SeatUser(this);
        screen = std::move(display);
    }

    MemoryFiles& Disk() { return static_cast<MemoryFiles&>(*files); }
    MemorySettings& Store() { return static_cast<MemorySettings&>(*settings); }

    void Attend(Form&) override {}
    MessageAnswer Answer(MessageKind, const Text& text, const Text& title, MessageButtons) override {
        questions.push_back(title + ": " + text);
        return answer;
    }
};

} // namespace ostrel::test

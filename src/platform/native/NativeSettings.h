#pragma once

#include <string>

#include "platform/SettingsStore.h"
#include "platform/native/SettingsFile.h"

namespace ostrel {

/// The directory for the files of this component among the user's settings; empty if the user has no home
/// directory.
std::string UserConfigDirectory();

/// Settings in two text files: `settings` by application, section and key, and `keys` with the direct ones.
class NativeSettings final : public SettingsStore {
public:
    /// `directory` is the system's path; with an empty one nothing is found and nothing stored.
    explicit NativeSettings(const std::string& directory, SystemCalls& calls = SystemCalls::Real());

    std::optional<Text> Get(const Text& application, const Text& section, const Text& key) override;
    Text Save(const Text& application, const Text& section, const Text& key, const Text& value) override;
    Text DeleteKey(const Text& application, const Text& section, const Text& key) override;
    Text DeleteSection(const Text& application, const Text& section) override;
    std::optional<Variant> Query(Long area, const Text& key, const Text& name) override;
    Text Set(Long area, const Text& key, const Text& name, const Variant& value) override;

private:
    bool there_;
    SettingsFile settings_;
    SettingsFile keys_;
};

} // namespace ostrel

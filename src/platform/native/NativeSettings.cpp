#include "platform/native/NativeSettings.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "platform/native/SystemErrors.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

/// The browser would have made these for every user.
constexpr TextView BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer";

Text AreaName(Long area) { return area == CurrentUserArea ? "user" : area == MachineArea ? "machine" : ""; }

Text WithoutLastBackslash(Text key) {
    if (key.ends_with('\\')) key.pop_back();
    return key;
}

/// Whether `key` is `above` or a key below it.
bool StandsIn(TextView key, TextView above) {
    return StartsWithText(key, above) && (key.size() == above.size() || key[above.size()] == '\\');
}

/// Removes the settings for which `goes` is true. Returns whether there were any.
template <class Goes>
bool Remove(SettingsFile::Lines& lines, Goes goes) {
    return std::erase_if(lines, [&](const SettingsFile::Line& line) {
               return line.setting && goes(line.setting->names);
           }) > 0;
}

} // namespace

std::string UserConfigDirectory() {
    // A relative path here is to be ignored.
    if (const char* const config = std::getenv("XDG_CONFIG_HOME"); config && config[0] == '/')
        return std::string(config) + "/ostrelwebhelp";
    if (const char* const home = std::getenv("HOME"); home && home[0] == '/')
        return std::string(home) + "/.config/ostrelwebhelp";
    return {};
}

NativeSettings::NativeSettings(const std::string& directory, SystemCalls& calls)
    : there_(!directory.empty()), settings_(calls, directory + "/settings"),
      keys_(calls, directory + "/keys") {}

std::optional<Text> NativeSettings::Get(const Text& application, const Text& section, const Text& key) {
    if (!there_) return std::nullopt;
    auto value = settings_.Find({application, section, key});
    Text* const text = value ? std::get_if<Text>(&*value) : nullptr;
    return text ? std::optional(std::move(*text)) : std::nullopt;
}

Text NativeSettings::Save(const Text& application, const Text& section, const Text& key, const Text& value) {
    if (!there_) return SystemSentence(ENOENT);
    return settings_.Change([&](SettingsFile::Lines& lines) {
        return SettingsFile::Put(lines, {{application, section, key}, value});
    });
}

Text NativeSettings::DeleteKey(const Text& application, const Text& section, const Text& key) {
    if (!there_) return {};
    return settings_.Change([&](SettingsFile::Lines& lines) {
        return Remove(lines, [&](const Setting::Names& names) {
            return SettingsFile::SameNames(names, {application, section, key});
        });
    });
}

Text NativeSettings::DeleteSection(const Text& application, const Text& section) {
    if (!there_) return {};
    return settings_.Change([&](SettingsFile::Lines& lines) {
        return Remove(lines, [&](const Setting::Names& names) {
            return EqualText(names[0], application) && EqualText(names[1], section);
        });
    });
}

std::optional<Variant> NativeSettings::Query(Long area, const Text& key, const Text& name) {
    if (!there_ || AreaName(area).empty()) return std::nullopt;
    return keys_.Find({AreaName(area), WithoutLastBackslash(key), name});
}

Text NativeSettings::Set(Long area, const Text& key, const Text& name, const Variant& value) {
    const Text areaName = AreaName(area);
    if (!there_ || areaName.empty()) return SystemSentence(ENOENT);
    const Text place = WithoutLastBackslash(key);
    bool found = StandsIn(place, BrowserKey);
    Text fault = keys_.Change([&](SettingsFile::Lines& lines) {
        found = found || std::any_of(lines.begin(), lines.end(), [&](const SettingsFile::Line& line) {
                    return line.setting && EqualText(line.setting->names[0], areaName) &&
                           StandsIn(line.setting->names[1], place);
                });
        return found && SettingsFile::Put(lines, {{areaName, place, name}, value});
    });
    return found || !fault.empty() ? fault : SystemSentence(ENOENT);
}

} // namespace ostrel

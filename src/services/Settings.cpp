#include "services/Settings.h"

#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::services {

namespace {

/// The number that a text is, or that it starts with.
Double NumberOf(const Text& text) { return ToDouble(text).value_or(LeadingNumber(text)); }

} // namespace

std::optional<Text> Settings::Find(const Text& section, const Text& key) const {
    if (properties_.RegistryApp.empty()) return std::nullopt;
    return context_.platform.settings->Get(properties_.RegistryApp, section, key);
}

Text Settings::Get(const Text& section, const Text& key, const Text& fallback) const {
    return Find(section, key).value_or(fallback);
}

bool Settings::GetBoolean(const Text& section, const Text& key, bool fallback) const {
    const Text text = Lower(Get(section, key, {}));
    if (text == "false" || text == "0" || text == "no") return false;
    if (text == "true" || text == "1" || text == "-1" || text == "yes") return true;
    return fallback;
}

Double Settings::GetDouble(const Text& section, const Text& key, Double fallback) const {
    const std::optional<Text> text = Find(section, key);
    return text ? NumberOf(*text) : fallback;
}

Long Settings::GetLong(const Text& section, const Text& key, Long fallback) const {
    const std::optional<Text> text = Find(section, key);
    return text ? ToLong(NumberOf(*text)).value_or(0) : fallback;
}

void Settings::Save(const Text& section, const Text& key, const Text& value) const {
    if (properties_.RegistryApp.empty()) return;
    Trace(context_.platform.settings->Save(properties_.RegistryApp, section, key, value));
}

void Settings::SaveBoolean(const Text& section, const Text& key, bool value) const {
    Save(section, key, value ? "True" : "False");
}

void Settings::SaveDouble(const Text& section, const Text& key, Double value) const {
    Save(section, key, FromDouble(value));
}

void Settings::SaveLong(const Text& section, const Text& key, Long value) const {
    Save(section, key, FromLong(value));
}

void Settings::DeleteKey(const Text& section, const Text& key) const {
    if (section.empty() || key.empty()) return;
    if (properties_.RegistryApp.empty()) return;
    Trace(context_.platform.settings->DeleteKey(properties_.RegistryApp, section, key));
}

void Settings::DeleteSection(const Text& section) const {
    if (section.empty() || properties_.RegistryApp.empty()) return;
    Trace(context_.platform.settings->DeleteSection(properties_.RegistryApp, section));
}

Variant Settings::Query(Long area, const Text& key, const Text& name) const {
    return context_.platform.settings->Query(area, key, name).value_or(Text());
}

void Settings::Set(Long area, const Text& key, const Text& name, const Variant& value, Long type) const {
    constexpr Long textType = 1, numberType = 4;
    const Text* text = std::get_if<Text>(&value);
    const Double number = text ? 0 : std::get<Double>(value);
    if (type == textType) {
        Trace(context_.platform.settings->Set(area, key, name, text ? *text : FromDouble(number)));
    } else if (type == numberType) {
        // Four bytes: what is no whole number of that size is not stored.
        const std::optional<Long> whole = text ? ToLong(*text) : ToLong(number);
        if (whole) Trace(context_.platform.settings->Set(area, key, name, Double{*whole * 1.0}));
    }
}

void Settings::Trace(const Text& failure) const {
    if (!failure.empty()) context_.events.StatusTextChange.Tell("Settings Error - " + failure);
}

} // namespace ostrel::services

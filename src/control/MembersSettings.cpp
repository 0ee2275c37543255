#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/Settings.h"

namespace ostrel {

namespace {

services::Settings SettingsOf(ControlParts& parts) { return {parts.context, parts.state.service}; }

} // namespace

Variant OstrelWebHelp::QueryValue(Long KeyArea, const Text& KeyName, const Text& ValueName) {
    return parts_->guard([&] { return SettingsOf(*parts_).Query(KeyArea, KeyName, ValueName); });
}

void OstrelWebHelp::RegistryDeleteKey(const Text& Section, const Text& Key) {
    parts_->guard([&] { SettingsOf(*parts_).DeleteKey(Section, Key); });
}

void OstrelWebHelp::RegistryDeleteSection(const Text& Section) {
    parts_->guard([&] { SettingsOf(*parts_).DeleteSection(Section); });
}

Text OstrelWebHelp::RegistryGetSetting(const Text& Section, const Text& Key, const Text& Default) {
    return parts_->guard([&] { return SettingsOf(*parts_).Get(Section, Key, Default); });
}

Flag OstrelWebHelp::RegistryGetSettingBoolean(const Text& Section, const Text& Key, Flag Default) {
    return parts_->guard([&] { return SettingsOf(*parts_).GetBoolean(Section, Key, Default); });
}

Double OstrelWebHelp::RegistryGetSettingDouble(const Text& Section, const Text& Key, Double Default) {
    return parts_->guard([&] { return SettingsOf(*parts_).GetDouble(Section, Key, Default); });
}

Long OstrelWebHelp::RegistryGetSettingLong(const Text& Section, const Text& Key, Long Default) {
    return parts_->guard([&] { return SettingsOf(*parts_).GetLong(Section, Key, Default); });
}

void OstrelWebHelp::RegistrySaveSetting(const Text& Section, const Text& Key, const Text& Value) {
    parts_->guard([&] { SettingsOf(*parts_).Save(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingBoolean(const Text& Section, const Text& Key, Flag Value) {
    parts_->guard([&] { SettingsOf(*parts_).SaveBoolean(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingDouble(const Text& Section, const Text& Key, Double Value) {
    parts_->guard([&] { SettingsOf(*parts_).SaveDouble(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingLong(const Text& Section, const Text& Key, Long Value) {
    parts_->guard([&] { SettingsOf(*parts_).SaveLong(Section, Key, Value); });
}

void OstrelWebHelp::SetKeyValue(Long KeyArea, const Text& KeyName, const Text& ValueName,
                                const Variant& Value, Long ValueType) {
    parts_->guard([&] { SettingsOf(*parts_).Set(KeyArea, KeyName, ValueName, Value, ValueType); });
}

} // namespace ostrel

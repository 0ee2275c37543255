#include "control/Guard.h"
#include "services/CountryCode.h"
#include "services/Settings.h"
#include "services/TimeText.h"

namespace ostrel {

namespace {

services::Settings SettingsOf(Context& context, const State& state) { return {context, state.service}; }

Long Show(const Context& context, const Text& title, MessageKind kind, const Text& text, Long buttons) {
    return static_cast<Long>(
        context.platform.screen->Message(kind, text, title, static_cast<MessageButtons>(buttons)));
}

void Wait(const Context& context, Long milliseconds) {
    if (context.platform.clock && milliseconds > 0) context.platform.clock->Wait(milliseconds);
}

} // namespace

Variant OstrelWebHelp::QueryValue(Long KeyArea, const Text& KeyName, const Text& ValueName) {
    return Guarded([&] { return SettingsOf(context_, state_).Query(KeyArea, KeyName, ValueName); });
}

void OstrelWebHelp::RegistryDeleteKey(const Text& Section, const Text& Key) {
    Guarded([&] { SettingsOf(context_, state_).DeleteKey(Section, Key); });
}

void OstrelWebHelp::RegistryDeleteSection(const Text& Section) {
    Guarded([&] { SettingsOf(context_, state_).DeleteSection(Section); });
}

Text OstrelWebHelp::RegistryGetSetting(const Text& Section, const Text& Key, const Text& Default) {
    return Guarded([&] { return SettingsOf(context_, state_).Get(Section, Key, Default); });
}

Flag OstrelWebHelp::RegistryGetSettingBoolean(const Text& Section, const Text& Key, Flag Default) {
    return Guarded([&] { return SettingsOf(context_, state_).GetBoolean(Section, Key, Default); });
}

Double OstrelWebHelp::RegistryGetSettingDouble(const Text& Section, const Text& Key, Double Default) {
    return Guarded([&] { return SettingsOf(context_, state_).GetDouble(Section, Key, Default); });
}

Long OstrelWebHelp::RegistryGetSettingLong(const Text& Section, const Text& Key, Long Default) {
    return Guarded([&] { return SettingsOf(context_, state_).GetLong(Section, Key, Default); });
}

void OstrelWebHelp::RegistrySaveSetting(const Text& Section, const Text& Key, const Text& Value) {
    Guarded([&] { SettingsOf(context_, state_).Save(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingBoolean(const Text& Section, const Text& Key, Flag Value) {
    Guarded([&] { SettingsOf(context_, state_).SaveBoolean(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingDouble(const Text& Section, const Text& Key, Double Value) {
    Guarded([&] { SettingsOf(context_, state_).SaveDouble(Section, Key, Value); });
}

void OstrelWebHelp::RegistrySaveSettingLong(const Text& Section, const Text& Key, Long Value) {
    Guarded([&] { SettingsOf(context_, state_).SaveLong(Section, Key, Value); });
}

void OstrelWebHelp::SetKeyValue(Long KeyArea, const Text& KeyName, const Text& ValueName,
                                const Variant& Value, Long ValueType) {
    Guarded([&] { SettingsOf(context_, state_).Set(KeyArea, KeyName, ValueName, Value, ValueType); });
}

Long OstrelWebHelp::CountryCode() {
    return Guarded([&] { return services::CountryCode(); });
}

Text OstrelWebHelp::HoursMinutes(Long Minutes) {
    return Guarded([&] { return services::HoursMinutes(Minutes); });
}

Text OstrelWebHelp::HoursMinutesSeconds(Long Seconds) {
    return Guarded([&] { return services::HoursMinutesSeconds(Seconds); });
}

Flag OstrelWebHelp::IsTime(const Text& InputString, const Text& TimeDelimiter) {
    return Guarded([&] { return services::IsTime(InputString, TimeDelimiter); });
}

void OstrelWebHelp::MessageError(const Text& ErrorMessage) {
    Guarded([&] { Show(context_, state_.service.ProgramName, MessageKind::Error, ErrorMessage, 0); });
}

void OstrelWebHelp::MessageInfo(const Text& ErrorMessage) {
    Guarded([&] { Show(context_, state_.service.ProgramName, MessageKind::Info, ErrorMessage, 0); });
}

Long OstrelWebHelp::MessageQuery(const Text& ErrorMessage, Long Buttons) {
    return Guarded([&] {
        // The higher bits of a host's flags choose an icon and a default, which a question has already.
        constexpr Long buttonBits = 7;
        return Show(context_, state_.service.ProgramName, MessageKind::Query, ErrorMessage,
                    Buttons & buttonBits);
    });
}

void OstrelWebHelp::MessageWarn(const Text& ErrorMessage) {
    Guarded([&] { Show(context_, state_.service.ProgramName, MessageKind::Warn, ErrorMessage, 0); });
}

Text OstrelWebHelp::MinutesSeconds(Long Seconds) {
    return Guarded([&] { return services::MinutesSeconds(Seconds); });
}

void OstrelWebHelp::WaitMilliSeconds(Long MilliSeconds) {
    Guarded([&] { Wait(context_, MilliSeconds); });
}

void OstrelWebHelp::WaitSeconds(Long Seconds) {
    Guarded([&] {
        for (; Seconds > 0; --Seconds) Wait(context_, 1000);
    });
}

} // namespace ostrel

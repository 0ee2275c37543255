#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> SettingsMembers() {
    return {
        MEMBER(SortDate, "DateValues[NumberSort] Pointers[NumberSort] NumberSort SortUp"),
        MEMBER(SortNumeric, "NumericValues[NumberSort] Pointers[NumberSort] NumberSort SortUp"),
        MEMBER(SortText, "TextValues[NumberSort] Pointers[NumberSort] NumberSort SortUp"),
        MEMBER(QueryValue, "KeyArea KeyName ValueName"),
        MEMBER(RegistryDeleteKey, "Section Key"),
        MEMBER(RegistryDeleteSection, "Section"),
        MEMBER(RegistryGetSetting, "Section Key Default"),
        MEMBER(RegistryGetSettingBoolean, "Section Key Default"),
        MEMBER(RegistryGetSettingDouble, "Section Key Default"),
        MEMBER(RegistryGetSettingLong, "Section Key Default"),
        MEMBER(RegistrySaveSetting, "Section Key Value"),
        MEMBER(RegistrySaveSettingBoolean, "Section Key Value"),
        MEMBER(RegistrySaveSettingDouble, "Section Key Value"),
        MEMBER(RegistrySaveSettingLong, "Section Key Value"),
        MEMBER(SetKeyValue, "KeyArea KeyName ValueName Value ValueType"),
    };
}

} // namespace ostrel::bridge

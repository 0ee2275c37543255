#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "text/Text.h"

namespace ostrel {

/// One setting: application, section and key; or area, key and name of a direct one.
struct Setting {
    using Names = std::array<Text, 3>;
    Names names;
    Variant value;
};

/// A line of the settings file, without its end: `"Sales" "Editor" "Find" = "caf\xE9"`, in UTF-8. Numbers
/// are written without quotes. Lines are independent, so that a damaged one does not affect the others.
std::string FormatSetting(const Setting& setting);
/// Nothing for a comment or a damaged line.
std::optional<Setting> ParseSetting(std::string_view line);

} // namespace ostrel

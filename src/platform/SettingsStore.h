#pragma once

#include <optional>

#include "text/Text.h"

namespace ostrel {

// The areas of direct keys.
inline constexpr Long CurrentUserArea = -2147483647;
inline constexpr Long MachineArea = -2147483646;

/// Texts kept for the user from run to run. Names ignore case; a stored empty text is found, not absent.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::optional<Text> Get(const Text& application, const Text& section, const Text& key) = 0;
    /// The empty text for success, else the system's sentence. So are the results below.
    virtual Text Save(const Text& application, const Text& section, const Text& key, const Text& value) = 0;
    virtual Text DeleteKey(const Text& application, const Text& section, const Text& key) = 0;
    virtual Text DeleteSection(const Text& application, const Text& section) = 0;

    /// Direct keys, such as the browser's page setup. Nothing is found in another `area` than the two above.
    virtual std::optional<Variant> Query(Long area, const Text& key, const Text& name) = 0;
    /// Stores only where the key is there.
    virtual Text Set(Long area, const Text& key, const Text& name, const Variant& value) = 0;
};

} // namespace ostrel

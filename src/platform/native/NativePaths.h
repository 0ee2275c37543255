#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/Text.h"

namespace ostrel {

/// The component's paths and the system's: `C:\data\out` is `/data/out`, there is no other drive, and names
/// are UTF-8 in the system.
class NativePaths {
public:
    /// Starts in the directory of the process, or in the root where the code page has no name for that one.
    NativePaths();

    /// The system's path, absolute and without "." and "..". Nothing for an empty path, other drives, network
    /// shares and names that contain a null character.
    std::optional<std::string> ToSystem(TextView path) const;
    /// The component's path of an absolute system path; nothing where the code page lacks one of its names.
    static std::optional<Text> FromSystem(std::string_view path);
    /// A single name; nothing if the code page cannot represent it.
    static std::optional<Text> NameFromSystem(std::string_view name);

    /// Without a trailing backslash unless it is the root.
    const Text& Current() const { return current_; }
    /// `directory` is a path that `ToSystem` gave.
    void SetCurrent(std::string_view directory);

    static bool IsDriveHere(char letter) { return letter == 'C' || letter == 'c'; }

private:
    Text current_ = "C:\\";
    std::string systemCurrent_ = "/";
};

} // namespace ostrel

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/native/SettingsLine.h"
#include "platform/native/SystemCalls.h"

namespace ostrel {

/// A plain text file of settings that several programs may use at once. Lines that make no sense are lost to
/// readers, and kept in the file.
class SettingsFile {
public:
    struct Line {
        std::string text;
        std::optional<Setting> setting;
    };
    using Lines = std::vector<Line>;

    /// `path` is the system's.
    SettingsFile(SystemCalls& calls, std::string path) : calls_(calls), path_(std::move(path)) {}

    /// The value of the last line with these names, ignoring case.
    std::optional<Variant> Find(const Setting::Names& names);
    /// Reads the lines, calls `change` on them and writes them back if it returns true, while no other
    /// program does the same. A file that cannot be read is left alone. The empty text for success, else the
    /// system's sentence.
    Text Change(const std::function<bool(Lines&)>& change);

    static bool SameNames(const Setting::Names& left, const Setting::Names& right);
    /// Puts the value in the place of the former one; false where it was the same.
    static bool Put(Lines& lines, Setting setting);

private:
    /// 0, or the error that keeps the file from being read. A missing file has no lines.
    int ReadText(std::string& text);
    int ReadLines(Lines& lines);
    int TakeLock(int file);

    SystemCalls& calls_;
    std::string path_;
};

} // namespace ostrel

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ostrel::tables {

/// The list of a report's own files, written beside its pages: `.sales.ostrel` beside `sales.htm`. It
/// distinguishes them from the user's files. Names are the system's, in UTF-8.
///
/// A list may come from anywhere, so names that a report would not use are skipped.
struct ReportList {
    enum class Found { Nothing, List, SomethingElse };
    static constexpr std::uint64_t UnknownSize = UINT64_MAX;

    /// Of a report with that main page, without its extension.
    static std::string NameOf(std::string_view stem) { return "." + std::string(stem) + ".ostrel"; }
    /// Identifies the input by a hash of its path. The list may be published, so it does not hold the path.
    static std::string MarkOf(const std::string& input);

    /// Reads the list of that report. Anything else of that name, such as a symbolic link, is not read.
    Found Read(const std::string& directory, std::string_view stem);
    /// The list as text. It is empty where there are more files than a list may hold.
    std::string Spell() const;

    std::string input;                                        ///< mark of the input
    std::vector<std::pair<std::string, std::uint64_t>> files; ///< names and sizes
};

/// The main page of the report that was made last in a directory, by its name there; empty where there is
/// none.
std::string MainPageIn(const std::string& directory);

} // namespace ostrel::tables

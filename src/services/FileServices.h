#pragma once

#include <optional>

#include "platform/Context.h"
#include "services/ServiceProperties.h"
#include "text/Array.h"
#include "text/Rope.h"

namespace ostrel::services {

// Files by whole texts. A False comes with a full sentence in `error`.

bool FileExists(Files& files, const Text& path);
bool DirectoryExists(Files& files, const Text& directory);
bool FileHTML(Files& files, const Text& path);
bool DirectoryChange(Files& files, const Text& directory, Text& error);
bool DirectoryMake(Files& files, const Text& directory, Text& error);
bool KillFile(Files& files, const Text& path, Text& error);
bool KillFiles(Files& files, const Text& path, Text& error, bool notExistError, bool clearAttributes);
bool KillTempFiles(Files& files, const Text& tempTag, Text& error);
bool FileRename(Files& files, const Text& path, const Text& newName, Text& error);
Text ReadFile(Files& files, const Text& path, Text& lastFileError);
bool WriteFile(Files& files, const Text& path, const Text& output, Text& error);
Text FormatErrorMessage(Files& files, Long number);
Text WinTempPath(Files& files);
Text WinTempFile(Files& files, const Text& tempTag, const Text& defaultFile);

/// How the safe write treats a file that is there.
struct WriteOptions {
    bool createBackup = false;
    bool overwrite = true; ///< False fails where there is a file
    /// Asks the user in a message box of this title, whatever `overwrite` says.
    std::optional<Text> askTitle = {};
};

/// The safe write: the old file stands until the new one takes its place whole. True also where the user
/// declined, with no error.
bool WriteFileFull(Context& context, const Text& path, const Rope& output, Text& error,
                   const WriteOptions& options);

/// Whether the file holds exactly these pieces. Reads it once, in chunks, and stops at the first difference.
bool FileEquals(Files& files, const Text& path, const Rope& content);

Text WorkFilePath(const ServiceProperties& properties, Long number);
void WorkFileNextIncrement(ServiceProperties& properties);
void WorkFilesKill(Files& files, const ServiceProperties& properties);

} // namespace ostrel::services

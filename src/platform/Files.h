#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "text/Text.h"

namespace ostrel {

/// What a file operation came to. `number` is the component's error number (53 not found, 61 disk full,
/// 70 permission denied, 75 path or file access error, 76 path not found, 57 device error), 0 for success;
/// `text` is the system's sentence for it.
struct FileResult {
    Long number = 0;
    Text text;
    bool ofBackup = false; ///< it was the backup of the file that could not be kept
    explicit operator bool() const { return number == 0; }
};

/// A file open for reading from front to back.
class FileReader {
public:
    virtual ~FileReader() = default;
    /// Up to `size` bytes into `buffer`; fewer only at the end of the file. `count` tells how many.
    virtual FileResult Read(char* buffer, std::size_t size, std::size_t& count) = 0;
};

/// The file system in the component's own paths (backslashes; `C:\data` is `/data` where the system has
/// slashes). Nothing throws; nothing is left half done.
class Files {
public:
    virtual ~Files() = default;

    /// Whether the path is a file that opens for reading. A directory is not.
    virtual bool IsFile(const Text& path) = 0;
    virtual bool IsDirectory(const Text& path) = 0;
    /// Size in bytes.
    virtual FileResult Size(const Text& path, std::uint64_t& size) = 0;
    /// When it was last written, local time.
    virtual FileResult Written(const Text& path, Date& when) = 0;
    virtual FileResult Read(const Text& path, Text& content) = 0;
    virtual FileResult Open(const Text& path, std::unique_ptr<FileReader>& reader) = 0;

    /// Puts the pieces, one behind the other, in the place of the file in one step: at any moment the old
    /// file or the new one stands there whole. With a `backup` path the old file is kept under that name.
    virtual FileResult Replace(const Text& path, std::span<const TextView> pieces,
                               const Text& backup = {}) = 0;

    virtual FileResult Delete(const Text& path) = 0;
    virtual FileResult Rename(const Text& from, const Text& to) = 0;
    virtual FileResult ClearAttributes(const Text& path) = 0;
    virtual FileResult MakeDirectory(const Text& path) = 0;
    virtual FileResult ChangeDirectory(const Text& path) = 0;
    virtual FileResult ChangeDrive(const Text& drive) = 0;
    /// The current directory, without a trailing backslash unless it is a drive's root.
    virtual Text CurrentDirectory() = 0;

    /// Names (no directory) of the plain files that match the last part of `mask` ("*" and "?", ignoring
    /// case), in name order.
    virtual std::vector<Text> List(const Text& mask) = 0;

    /// The directory for temporary files; empty where there is none.
    virtual Text TemporaryDirectory() = 0;
    /// Makes a new empty file with a unique name ending in ".tmp" in the temporary directory.
    virtual FileResult MakeTemporary(const Text& prefix, Text& path) = 0;
    /// The directory of the running program.
    virtual Text ApplicationDirectory() = 0;
    /// The system's sentence for one of its error numbers; empty if it has none.
    virtual Text SystemErrorText(Long number) = 0;
};

} // namespace ostrel

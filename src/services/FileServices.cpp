#include "services/FileServices.h"

#include <algorithm>
#include <cstring>

#include "services/Paths.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::services {

namespace {

constexpr Long AccessDenied = 75;

bool HasWildCard(TextView path) { return path.find_first_of("*?") != NotFound; }

bool Failed(const FileResult& result, Text& error) {
    if (result) return false;
    error = result.text;
    return true;
}

Text NotRenamed(const Text& path, const FileResult& result) {
    return "File [" + path + "] was not renamed - " + result.text;
}

/// The files that a path or mask stands for.
std::vector<Text> Matching(Files& files, const Text& path) {
    const Text directory = path.substr(0, path.find_last_of("\\/:") + 1);
    std::vector<Text> paths;
    for (Text& name : files.List(path)) {
        // A mask ignores case; a plain path means its own spelling alone.
        if (!HasWildCard(path) && directory + name != path) continue;
        paths.push_back(directory + name);
    }
    return paths;
}

/// Deletes what is left of the paths; the result is that of the first that stays.
FileResult DeleteAll(Files& files, std::vector<Text>& paths) {
    FileResult first;
    std::erase_if(paths, [&](const Text& path) {
        FileResult result = files.Delete(path);
        const bool gone = static_cast<bool>(result);
        if (!gone && first) first = std::move(result);
        return gone;
    });
    return first;
}

} // namespace

bool FileExists(Files& files, const Text& path) {
    if (path.empty()) return false;
    return HasWildCard(path) ? !files.List(path).empty() : files.IsFile(path);
}

bool DirectoryExists(Files& files, const Text& directory) {
    const Text path = RemoveLastBackslash(directory);
    // A drive alone means its root.
    return !path.empty() ? files.IsDirectory(path.back() == ':' ? path + "\\" : path)
                         : !directory.empty() && files.IsDirectory(directory);
}

bool FileHTML(Files& files, const Text& path) {
    if (!FileExists(files, path)) return false;
    Text error;
    const Text text = ReadFile(files, path, error);
    return FindText(text, "<HTML") != NotFound && FindText(text, "</HTML") != NotFound;
}

bool DirectoryChange(Files& files, const Text& directory, Text& error) {
    error.clear();
    const Text current = files.CurrentDirectory();
    const bool hasDrive = directory.size() > 1 && directory[1] == ':';
    if (hasDrive && !EqualText(TextView(current).substr(0, 1), TextView(directory).substr(0, 1)))
        if (Failed(files.ChangeDrive(directory.substr(0, 2)), error)) return false;
    return !Failed(files.ChangeDirectory(directory), error);
}

bool DirectoryMake(Files& files, const Text& directory, Text& error) {
    error.clear();
    Text path = directory;
    std::replace(path.begin(), path.end(), '/', '\\');
    path = RemoveLastBackslash(TrimBlanks(path));
    if (DirectoryExists(files, path)) return true;

    const Text old = files.CurrentDirectory();
    for (std::size_t end = path.find('\\'), first = true; !path.empty();
         end = path.find('\\', end + 1), first = false) {
        const Text part = path.substr(0, end);
        if (first) {
            if (!DirectoryExists(files, part + "\\")) {
                error = ErrorMessageDoesNotExist("Drive", part);
                return false;
            }
        } else if (!DirectoryExists(files, part)) {
            if (Failed(files.MakeDirectory(part), error)) return false;
        }
        if (end == Text::npos) break;
    }
    if (!DirectoryExists(files, path))
        error = "Directory [" + path + "] may have been created, but can't be found!";
    else if (!files.ChangeDirectory(old))
        error = "Old Directory [" + old + "] can't be reset.";
    return error.empty();
}

bool KillFile(Files& files, const Text& path, Text& error) {
    error.clear();
    if (path.empty())
        error = ErrorMessageNotDefined("File Path");
    else if (!FileExists(files, path))
        error = ErrorMessageDoesNotExist("File", path);
    else
        Failed(files.Delete(path), error);
    return error.empty();
}

bool KillFiles(Files& files, const Text& path, Text& error, bool notExistError, bool clearAttributes) {
    error.clear();
    if (path.empty()) {
        error = ErrorMessageNotDefined("File Path");
        return false;
    }
    std::vector<Text> paths = Matching(files, path);
    if (paths.empty()) {
        if (notExistError) error = "Files [" + path + "] do not exist.";
        return !notExistError;
    }
    FileResult result = DeleteAll(files, paths);
    if (result.number == AccessDenied && clearAttributes) {
        for (const Text& left : paths) files.ClearAttributes(left);
        result = DeleteAll(files, paths);
    }
    if (!result) error = "Files [" + path + "] can't be deleted - " + result.text;
    return static_cast<bool>(result);
}

bool KillTempFiles(Files& files, const Text& tempTag, Text& error) {
    return KillFiles(files, AddMissingBackslash(WinTempPath(files)) + tempTag + "*.tmp", error, true, true);
}

bool FileRename(Files& files, const Text& path, const Text& newName, Text& error) {
    error.clear();
    const Text directory = FileDirectory(path);
    if (path.empty())
        error = ErrorMessageNotDefined("File");
    else if (directory.empty())
        error = "File [" + path + "] must be a full path.";
    else if (!FileExists(files, path))
        error = ErrorMessageDoesNotExist("File", path);
    else if (newName.empty())
        error = ErrorMessageNotDefined("New File Name");
    if (!error.empty()) return false;

    const Text target = FileDirectory(newName).empty() ? directory + newName : newName;
    if (FileExists(files, target))
        error = "New File [" + target + "] exists.";
    else if (const FileResult result = files.Rename(path, target); !result)
        error = NotRenamed(path, result);
    return error.empty();
}

Text ReadFile(Files& files, const Text& path, Text& lastFileError) {
    lastFileError.clear();
    std::uint64_t size = 0;
    Text content;
    if (Failed(files.Size(path, size), lastFileError) || size == 0) return {};
    if (Failed(files.Read(path, content), lastFileError)) return {};
    return content;
}

bool WriteFile(Files& files, const Text& path, const Text& output, Text& error) {
    error.clear();
    const TextView piece = output;
    return !Failed(files.Replace(path, {&piece, 1}), error);
}

Text FormatErrorMessage(Files& files, Long number) {
    if (number == 0) return {};
    Text text = files.SystemErrorText(number);
    return text.empty() ? "Error Number = " + FromLong(number) : text;
}

Text WinTempPath(Files& files) { return files.TemporaryDirectory(); }

Text WinTempFile(Files& files, const Text& tempTag, const Text& defaultFile) {
    constexpr std::size_t prefixSize = 3;
    const Text prefix = tempTag.size() < prefixSize ? Text("wbh") : Lower(tempTag.substr(0, prefixSize));
    Text path;
    return files.MakeTemporary(prefix, path) ? path : defaultFile;
}

bool WriteFileFull(Context& context, const Text& path, const Rope& output, Text& error,
                   const WriteOptions& options) {
    Files& files = *context.platform.files;
    error.clear();
    if (path.empty()) {
        error = ErrorMessageNotDefined("File Path");
        return false;
    }
    const Text file(TrimBlanks(path));
    const Text directory = FileDirectory(file);
    if (file.find('\\') == Text::npos)
        error = "Path [" + file + "] is not a full one.";
    else if (!DirectoryExists(files, directory))
        error = ErrorMessageDoesNotExist("Directory", directory);
    if (!error.empty()) return false;

    Text backup;
    if (FileExists(files, file)) {
        if (options.askTitle) {
            const Text question = "File [" + file + "] exists.  Do you want to Overwrite?";
            // A declined question is no failure; without a screen nobody could have agreed.
            if (context.platform.screen->Message(MessageKind::Query, question, *options.askTitle,
                                                 MessageButtons::YesNo) != MessageAnswer::Yes)
                return true;
        } else if (!options.overwrite) {
            error = "File [" + file + "] exists.";
            return false;
        }
        if (options.createBackup) backup = directory + FileNameOnly(file) + ".bak";
        if (backup == file) {
            // A backup file has no backup name of its own, and is not to be lost for want of one.
            error = "New File [" + backup + "] exists.";
            return false;
        }
    }
    const FileResult result = files.Replace(file, output.Pieces(), backup);
    if (!result) error = result.ofBackup ? NotRenamed(file, result) : result.text;
    return static_cast<bool>(result);
}

bool FileEquals(Files& files, const Text& path, const Rope& content) {
    constexpr std::size_t chunk = std::size_t{64} << 10;
    std::uint64_t size = 0;
    std::unique_ptr<FileReader> reader;
    if (!files.Size(path, size) || size != content.Size() || !files.Open(path, reader)) return false;

    std::size_t left = content.Size();
    const std::size_t bufferSize = std::min(left, chunk);
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    TextView read;
    for (TextView piece : content.Pieces()) {
        while (!piece.empty()) {
            if (read.empty()) {
                std::size_t count = 0;
                if (!reader->Read(buffer.get(), std::min(left, bufferSize), count) || count == 0)
                    return false;
                read = {buffer.get(), count};
                left -= count;
            }
            const std::size_t common = std::min(piece.size(), read.size());
            if (std::memcmp(piece.data(), read.data(), common) != 0) return false;
            piece.remove_prefix(common);
            read.remove_prefix(common);
        }
    }
    return true;
}

Text WorkFilePath(const ServiceProperties& properties, Long number) {
    if (properties.DirectoryHelp.empty() || properties.WorkFileRoot.empty() || number < 0 || number > 9)
        return {};
    return AddMissingBackslash(properties.DirectoryHelp) + properties.WorkFileRoot + FromLong(number) +
           ".html";
}

void WorkFileNextIncrement(ServiceProperties& properties) {
    properties.WorkFileNext = properties.WorkFileNext >= 9 ? 0 : properties.WorkFileNext + 1;
}

void WorkFilesKill(Files& files, const ServiceProperties& properties) {
    for (Long number = 0; number <= 9; ++number) {
        const Text path = WorkFilePath(properties, number);
        if (!path.empty()) files.Delete(path);
    }
}

} // namespace ostrel::services

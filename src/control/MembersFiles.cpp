#include "control/Guard.h"
#include "services/CsvText.h"
#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel {

Text OstrelWebHelp::BuildPath(const Text& Directory, const Text& File) {
    return Guarded([&] { return services::BuildPath(Directory, File); });
}

Flag OstrelWebHelp::DirectoryChange(const Text& Directory, Text& ErrorMessage) {
    return Guarded(
        [&] { return services::DirectoryChange(*context_.platform.files, Directory, ErrorMessage); });
}

Flag OstrelWebHelp::DirectoryExists(const Text& Directory) {
    return Guarded([&] { return services::DirectoryExists(*context_.platform.files, Directory); });
}

Flag OstrelWebHelp::DirectoryMake(const Text& Directory, Text& ErrorMessage) {
    return Guarded(
        [&] { return services::DirectoryMake(*context_.platform.files, Directory, ErrorMessage); });
}

Text OstrelWebHelp::ErrorMessageDoesNotExist(const Text& argMessage, const Text& argFile) {
    return Guarded([&] { return services::ErrorMessageDoesNotExist(argMessage, argFile); });
}

Text OstrelWebHelp::ErrorMessageNotDefined(const Text& argMessage) {
    return Guarded([&] { return services::ErrorMessageNotDefined(argMessage); });
}

Text OstrelWebHelp::ErrorMessageShortenFile(const Text& Message1, const Text& FilePath,
                                            const Text& Message2) {
    return Guarded([&] { return services::ErrorMessageShortenFile(Message1, FilePath, Message2); });
}

Text OstrelWebHelp::FileDirectory(const Text& FilePath) {
    return Guarded([&] { return services::FileDirectory(FilePath); });
}

Text OstrelWebHelp::FileExtension(const Text& FilePath) {
    return Guarded([&] { return services::FileExtension(FilePath); });
}

Text OstrelWebHelp::FileExtensionChange(const Text& FilePath, const Text& Extension) {
    return Guarded([&] { return services::FileExtensionChange(FilePath, Extension); });
}

Flag OstrelWebHelp::FileHTML(const Text& FilePath) {
    return Guarded([&] { return services::FileHTML(*context_.platform.files, FilePath); });
}

Flag OstrelWebHelp::FileInternet(const Text& FilePath) {
    return Guarded([&] { return services::FileInternet(FilePath); });
}

Text OstrelWebHelp::FileName(const Text& FilePath) {
    return Guarded([&] { return services::FileName(FilePath); });
}

Text OstrelWebHelp::FileNameOnly(const Text& FilePath) {
    return Guarded([&] { return services::FileNameOnly(FilePath); });
}

Text OstrelWebHelp::FilePathFromURL(const Text& FilePath) {
    return Guarded([&] { return services::FilePathFromURL(FilePath); });
}

Text OstrelWebHelp::FilePathFromURLCharacters(const Text& FilePath, Flag ConvertSlashes) {
    return Guarded([&] { return services::FilePathFromURLCharacters(FilePath, ConvertSlashes); });
}

Text OstrelWebHelp::FilePathShorten(const Text& FilePath, const Text& Delimiter, Long MaxLength,
                                    Long StartKeep, Long SlashesStart, Long SlashesEnd) {
    return Guarded([&] {
        return services::FilePathShorten(FilePath, Delimiter, MaxLength, StartKeep, SlashesStart, SlashesEnd);
    });
}

Text OstrelWebHelp::FilePathSimplify(const Text& FilePath, const Text& Directory) {
    return Guarded([&] { return services::FilePathSimplify(FilePath, Directory); });
}

Flag OstrelWebHelp::FileRename(const Text& FilePath, const Text& NewName, Text& ErrorMessage) {
    return Guarded(
        [&] { return services::FileRename(*context_.platform.files, FilePath, NewName, ErrorMessage); });
}

Text OstrelWebHelp::FormatErrorMessage(Long ErrorNumber) {
    return Guarded([&] { return services::FormatErrorMessage(*context_.platform.files, ErrorNumber); });
}

Flag OstrelWebHelp::KillFile(const Text& FilePath, Text& ErrorMessage) {
    return Guarded([&] { return services::KillFile(*context_.platform.files, FilePath, ErrorMessage); });
}

Flag OstrelWebHelp::KillFiles(const Text& FilePath, Text& ErrorMessage, Flag NotExistError,
                              Flag ClearAttributes) {
    return Guarded([&] {
        return services::KillFiles(*context_.platform.files, FilePath, ErrorMessage, NotExistError,
                                   ClearAttributes);
    });
}

Flag OstrelWebHelp::KillSelectedFiles(const Text& Mask, Text& ErrorMessage) {
    return Guarded(
        [&] { return services::KillFiles(*context_.platform.files, Mask, ErrorMessage, true, false); });
}

Flag OstrelWebHelp::KillTempFiles(const Text& TempTag, Text& ErrorMessage) {
    return Guarded([&] { return services::KillTempFiles(*context_.platform.files, TempTag, ErrorMessage); });
}

Text OstrelWebHelp::LastFileError() {
    return Guarded([&] { return state_.LastFileError; });
}

Text OstrelWebHelp::ReadFile(const Text& FilePath) {
    return Guarded(
        [&] { return services::ReadFile(*context_.platform.files, FilePath, state_.LastFileError); });
}

Text OstrelWebHelp::RemoveLastBackslash(const Text& InputString) {
    return Guarded([&] { return services::RemoveLastBackslash(InputString); });
}

Text OstrelWebHelp::RemoveLastSlash(const Text& InputString) {
    return Guarded([&] { return services::RemoveLastSlash(InputString); });
}

Text OstrelWebHelp::WinTempFile(const Text& TempTag, const Text& DefaultFile) {
    return Guarded([&] { return services::WinTempFile(*context_.platform.files, TempTag, DefaultFile); });
}

Text OstrelWebHelp::WinTempPath() {
    return Guarded([&] { return services::WinTempPath(*context_.platform.files); });
}

void OstrelWebHelp::WorkFileNextIncrement() {
    Guarded([&] { services::WorkFileNextIncrement(state_.service); });
}

Text OstrelWebHelp::WorkFilePath(Long FileNumber) {
    return Guarded([&] { return services::WorkFilePath(state_.service, FileNumber); });
}

void OstrelWebHelp::WorkFilesKill() {
    Guarded([&] { services::WorkFilesKill(*context_.platform.files, state_.service); });
}

Flag OstrelWebHelp::WriteFile(const Text& FilePath, const Text& Output, Text& ErrorMessage) {
    return Guarded(
        [&] { return services::WriteFile(*context_.platform.files, FilePath, Output, ErrorMessage); });
}

Text OstrelWebHelp::WriteFileCSVValue(const Text& Value, const Text& Delimiter) {
    return Guarded([&] { return services::WriteFileCSVValue(Value, Delimiter); });
}

Flag OstrelWebHelp::WriteFileFromCSVDatabase(const Text& FilePath, const Array<Text>& FieldNames,
                                             const Grid<Text>& FieldValues, Long NumberRecords,
                                             Long NumberFields, Text& ErrorMessage, const Text& Delimiter,
                                             Flag CreateBackup) {
    return Guarded([&] {
        const auto cell = [&](Long record, Long field) {
            const Text* value = FieldValues.Find(record, field);
            return value ? TextView(*value) : TextView();
        };
        LargeBuffer room;
        return services::WriteCsvFile(context_, FilePath,
                                      {FieldNames, NumberRecords, NumberFields, cell, Delimiter},
                                      CreateBackup, room, ErrorMessage);
    });
}

Flag OstrelWebHelp::WriteFileFull(const Text& Title, const Text& FilePath, const Text& Output,
                                  Text& ErrorMessage, Flag CreateBackup, Flag AskOverwrite, Flag Overwrite) {
    return Guarded([&] {
        Rope text;
        text.Append(nullptr, Output);
        return services::WriteFileFull(
            context_, FilePath, text, ErrorMessage,
            {CreateBackup, Overwrite, AskOverwrite ? std::optional(Title) : std::nullopt});
    });
}

} // namespace ostrel

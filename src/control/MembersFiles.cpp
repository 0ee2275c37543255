#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/CsvText.h"
#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel {

Text OstrelWebHelp::BuildPath(const Text& Directory, const Text& File) {
    return parts_->guard([&] { return services::BuildPath(Directory, File); });
}

Flag OstrelWebHelp::DirectoryChange(const Text& Directory, Text& ErrorMessage) {
    return parts_->guard([&] { return services::DirectoryChange(parts_->Disk(), Directory, ErrorMessage); });
}

Flag OstrelWebHelp::DirectoryExists(const Text& Directory) {
    return parts_->guard([&] { return services::DirectoryExists(parts_->Disk(), Directory); });
}

Flag OstrelWebHelp::DirectoryMake(const Text& Directory, Text& ErrorMessage) {
    return parts_->guard([&] { return services::DirectoryMake(parts_->Disk(), Directory, ErrorMessage); });
}

Text OstrelWebHelp::ErrorMessageDoesNotExist(const Text& argMessage, const Text& argFile) {
    return parts_->guard([&] { return services::ErrorMessageDoesNotExist(argMessage, argFile); });
}

Text OstrelWebHelp::ErrorMessageNotDefined(const Text& argMessage) {
    return parts_->guard([&] { return services::ErrorMessageNotDefined(argMessage); });
}

Text OstrelWebHelp::ErrorMessageShortenFile(const Text& Message1, const Text& FilePath,
                                            const Text& Message2) {
    return parts_->guard([&] { return services::ErrorMessageShortenFile(Message1, FilePath, Message2); });
}

Text OstrelWebHelp::FileDirectory(const Text& FilePath) {
    return parts_->guard([&] { return services::FileDirectory(FilePath); });
}

Text OstrelWebHelp::FileExtension(const Text& FilePath) {
    return parts_->guard([&] { return services::FileExtension(FilePath); });
}

Text OstrelWebHelp::FileExtensionChange(const Text& FilePath, const Text& Extension) {
    return parts_->guard([&] { return services::FileExtensionChange(FilePath, Extension); });
}

Flag OstrelWebHelp::FileHTML(const Text& FilePath) {
    return parts_->guard([&] { return services::FileHTML(parts_->Disk(), FilePath); });
}

Flag OstrelWebHelp::FileInternet(const Text& FilePath) {
    return parts_->guard([&] { return services::FileInternet(FilePath); });
}

Text OstrelWebHelp::FileName(const Text& FilePath) {
    return parts_->guard([&] { return services::FileName(FilePath); });
}

Text OstrelWebHelp::FileNameOnly(const Text& FilePath) {
    return parts_->guard([&] { return services::FileNameOnly(FilePath); });
}

Text OstrelWebHelp::FilePathFromURL(const Text& FilePath) {
    return parts_->guard([&] { return services::FilePathFromURL(FilePath); });
}

Text OstrelWebHelp::FilePathFromURLCharacters(const Text& FilePath, Flag ConvertSlashes) {
    return parts_->guard([&] { return services::FilePathFromURLCharacters(FilePath, ConvertSlashes); });
}

Text OstrelWebHelp::FilePathShorten(const Text& FilePath, const Text& Delimiter, Long MaxLength,
                                    Long StartKeep, Long SlashesStart, Long SlashesEnd) {
    return parts_->guard([&] {
        return services::FilePathShorten(FilePath, Delimiter, MaxLength, StartKeep, SlashesStart, SlashesEnd);
    });
}

Text OstrelWebHelp::FilePathSimplify(const Text& FilePath, const Text& Directory) {
    return parts_->guard([&] { return services::FilePathSimplify(FilePath, Directory); });
}

Flag OstrelWebHelp::FileRename(const Text& FilePath, const Text& NewName, Text& ErrorMessage) {
    return parts_->guard(
        [&] { return services::FileRename(parts_->Disk(), FilePath, NewName, ErrorMessage); });
}

Text OstrelWebHelp::FormatErrorMessage(Long ErrorNumber) {
    return parts_->guard([&] { return services::FormatErrorMessage(parts_->Disk(), ErrorNumber); });
}

Flag OstrelWebHelp::KillFile(const Text& FilePath, Text& ErrorMessage) {
    return parts_->guard([&] { return services::KillFile(parts_->Disk(), FilePath, ErrorMessage); });
}

Flag OstrelWebHelp::KillFiles(const Text& FilePath, Text& ErrorMessage, Flag NotExistError,
                              Flag ClearAttributes) {
    return parts_->guard([&] {
        return services::KillFiles(parts_->Disk(), FilePath, ErrorMessage, NotExistError, ClearAttributes);
    });
}

Flag OstrelWebHelp::KillSelectedFiles(const Text& Mask, Text& ErrorMessage) {
    return parts_->guard(
        [&] { return services::KillFiles(parts_->Disk(), Mask, ErrorMessage, true, false); });
}

Flag OstrelWebHelp::KillTempFiles(const Text& TempTag, Text& ErrorMessage) {
    return parts_->guard([&] { return services::KillTempFiles(parts_->Disk(), TempTag, ErrorMessage); });
}

Text OstrelWebHelp::LastFileError() {
    return parts_->guard([&] { return parts_->state.lastFileError; });
}

Text OstrelWebHelp::ReadFile(const Text& FilePath) {
    return parts_->guard(
        [&] { return services::ReadFile(parts_->Disk(), FilePath, parts_->state.lastFileError); });
}

Text OstrelWebHelp::RemoveLastBackslash(const Text& InputString) {
    return parts_->guard([&] { return services::RemoveLastBackslash(InputString); });
}

Text OstrelWebHelp::RemoveLastSlash(const Text& InputString) {
    return parts_->guard([&] { return services::RemoveLastSlash(InputString); });
}

Text OstrelWebHelp::WinTempFile(const Text& TempTag, const Text& DefaultFile) {
    return parts_->guard([&] { return services::WinTempFile(parts_->Disk(), TempTag, DefaultFile); });
}

Text OstrelWebHelp::WinTempPath() {
    return parts_->guard([&] { return services::WinTempPath(parts_->Disk()); });
}

void OstrelWebHelp::WorkFileNextIncrement() {
    parts_->guard([&] { services::WorkFileNextIncrement(parts_->state.service); });
}

Text OstrelWebHelp::WorkFilePath(Long FileNumber) {
    return parts_->guard([&] { return services::WorkFilePath(parts_->state.service, FileNumber); });
}

void OstrelWebHelp::WorkFilesKill() {
    parts_->guard([&] { services::WorkFilesKill(parts_->Disk(), parts_->state.service); });
}

Flag OstrelWebHelp::WriteFile(const Text& FilePath, const Text& Output, Text& ErrorMessage) {
    return parts_->guard([&] { return services::WriteFile(parts_->Disk(), FilePath, Output, ErrorMessage); });
}

Text OstrelWebHelp::WriteFileCSVValue(const Text& Value, const Text& Delimiter) {
    return parts_->guard([&] { return services::WriteFileCSVValue(Value, Delimiter); });
}

Flag OstrelWebHelp::WriteFileFromCSVDatabase(const Text& FilePath, const Array<Text>& FieldNames,
                                             const Grid<Text>& FieldValues, Long NumberRecords,
                                             Long NumberFields, Text& ErrorMessage, const Text& Delimiter,
                                             Flag CreateBackup) {
    return parts_->guard([&] {
        const auto cell = [&](Long record, Long field) {
            const Text* value = FieldValues.Find(record, field);
            return value ? TextView(*value) : TextView();
        };
        LargeBuffer room;
        return services::WriteCsvFile(parts_->context, FilePath,
                                      {FieldNames, NumberRecords, NumberFields, cell, Delimiter},
                                      CreateBackup, room, ErrorMessage);
    });
}

Flag OstrelWebHelp::WriteFileFull(const Text& Title, const Text& FilePath, const Text& Output,
                                  Text& ErrorMessage, Flag CreateBackup, Flag AskOverwrite, Flag Overwrite) {
    return parts_->guard([&] {
        Rope text;
        text.Append(nullptr, Output);
        return services::WriteFileFull(
            parts_->context, FilePath, text, ErrorMessage,
            {CreateBackup, Overwrite, AskOverwrite ? std::optional(Title) : std::nullopt});
    });
}

} // namespace ostrel

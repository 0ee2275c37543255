#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> FileMembers() {
    return {
        MEMBER(BuildPath, "Directory File"),
        MEMBER(DirectoryChange, "Directory ErrorMessage"),
        MEMBER(DirectoryExists, "Directory"),
        MEMBER(DirectoryMake, "Directory ErrorMessage"),
        MEMBER(ErrorMessageDoesNotExist, "argMessage argFile"),
        MEMBER(ErrorMessageNotDefined, "argMessage"),
        MEMBER(ErrorMessageShortenFile, "Message1 FilePath Message2"),
        MEMBER(FileDirectory, "FilePath"),
        MEMBER(FileExtension, "FilePath"),
        MEMBER(FileExtensionChange, "FilePath Extension"),
        MEMBER(FileHTML, "FilePath"),
        MEMBER(FileInternet, "FilePath"),
        MEMBER(FileName, "FilePath"),
        MEMBER(FileNameOnly, "FilePath"),
        MEMBER(FilePathFromURL, "FilePath"),
        MEMBER(FilePathFromURLCharacters, "FilePath ConvertSlashes"),
        MEMBER(FilePathShorten, "FilePath Delimiter MaxLength StartKeep SlashesStart SlashesEnd"),
        MEMBER(FilePathSimplify, "FilePath Directory"),
        MEMBER(FileRename, "FilePath NewName ErrorMessage"),
        MEMBER(FormatErrorMessage, "ErrorNumber"),
        MEMBER(KillFile, "FilePath ErrorMessage"),
        MEMBER(KillFiles, "FilePath ErrorMessage NotExistError ClearAttributes"),
        MEMBER(KillSelectedFiles, "Mask ErrorMessage"),
        MEMBER(KillTempFiles, "TempTag ErrorMessage"),
        MEMBER(LastFileError, ""),
        MEMBER(ReadFile, "FilePath"),
        MEMBER(RemoveLastBackslash, "InputString"),
        MEMBER(RemoveLastSlash, "InputString"),
        MEMBER(WinTempFile, "TempTag DefaultFile"),
        MEMBER(WinTempPath, ""),
        MEMBER(WorkFileNextIncrement, ""),
        MEMBER(WorkFilePath, "FileNumber"),
        MEMBER(WorkFilesKill, ""),
        MEMBER(WriteFile, "FilePath Output ErrorMessage"),
        MEMBER(WriteFileCSVValue, "Value Delimiter"),
        MEMBER(WriteFileFromCSVDatabase,
               "FilePath FieldNames[NumberFields] FieldValues[NumberRecords,NumberFields] "
               "NumberRecords NumberFields ErrorMessage Delimiter CreateBackup"),
        MEMBER(WriteFileFull, "Title FilePath Output ErrorMessage CreateBackup AskOverwrite Overwrite"),
    };
}

} // namespace ostrel::bridge

#pragma once

#include "text/Text.h"

namespace ostrel::services {

// Pure work on the text of paths.

Text AddMissingBackslash(TextView text);
Text AddMissingSlash(TextView text);
Text RemoveLastBackslash(TextView text);
Text RemoveLastSlash(TextView text);
/// `file` as it stands if it holds a backslash, else the directory and it; empty for an empty file.
Text BuildPath(TextView directory, TextView file);
/// Up to and including the last backslash or "/".
Text FileDirectory(TextView path);
Text FileName(TextView path);
Text FileNameOnly(TextView path);
Text FileExtension(TextView path);
Text FileExtensionChange(TextView path, TextView extension);
bool FileInternet(TextView path);
Text FilePathSimplify(TextView path, TextView directory);
Text FilePathFromURL(TextView path);
Text FilePathFromURLCharacters(TextView path, bool convertSlashes);
Text FilePathShorten(TextView path, TextView delimiter, Long maxLength, Long startKeep, Long slashesStart,
                     Long slashesEnd);

// The messages about them.

Text ErrorMessageDoesNotExist(TextView message, TextView file);
Text ErrorMessageNotDefined(TextView message);
Text ErrorMessageShortenFile(TextView message1, TextView path, TextView message2);

} // namespace ostrel::services

#include "help/PageFiles.h"

#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel::help {

bool CheckHelpDirectory(Files& files, const Text& directory, Text& error) {
    if (directory.empty())
        error = services::ErrorMessageNotDefined("Property [DirectoryHelp]");
    else if (!services::DirectoryExists(files, directory))
        error = services::ErrorMessageDoesNotExist("Property [DirectoryHelp]", directory);
    else
        return true;
    return false;
}

PageFiles ListPageFiles(Files& files, const Text& mask) {
    return {mask.substr(0, mask.rfind('\\') + 1), files.List(mask)};
}

} // namespace ostrel::help

#pragma once

#include <vector>

#include "platform/Files.h"

namespace ostrel::help {

/// Whether the help directory is named and exists; otherwise a sentence in `error`.
bool CheckHelpDirectory(Files& files, const Text& directory, Text& error);

/// The plain files of one mask, in the order of their names.
struct PageFiles {
    Text directory; ///< up to and including its last backslash
    std::vector<Text> names;
};

/// Lists the files of a mask that holds a backslash.
PageFiles ListPageFiles(Files& files, const Text& mask);

} // namespace ostrel::help

#pragma once

#include <vector>

#include "help/JobPanel.h"
#include "platform/Context.h"

namespace ostrel::help {

/// How a selection of pages to print came out.
enum class PrintSelection {
    Chosen,
    Stopped, ///< by the user, which is no failure
    Failed
};

/// Chooses the pages to print: the files of `selectMask` without those of `ignoreMask`, in the order of their
/// paths, byte for byte. A mask without a backslash looks into the help directory. Failed with a sentence
/// where there is no mask, no directory for the pages to ignore, or no page. The panel stays for the printing
/// where pages are chosen.
PrintSelection SelectPagesToPrint(const Context& context, JobPanel& panel, const Text& helpDirectory,
                                  const Text& selectMask, const Text& ignoreMask, std::vector<Text>& paths,
                                  Text& error);

} // namespace ostrel::help

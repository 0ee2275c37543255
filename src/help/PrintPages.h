#pragma once

#include <vector>

#include "platform/Context.h"

namespace ostrel::help {

/// The outcome of a selection of pages to print.
enum class PrintSelection {
    Chosen,
    Stopped, ///< by the user, which is no failure
    Failed
};

/// Chooses the pages to print: the files of `selectMask` without those of `ignoreMask`, in the order of their
/// paths, byte for byte. A mask without a backslash looks into the help directory. Failed with a sentence
/// where there is no directory for the pages to ignore, or no page.
PrintSelection SelectPagesToPrint(const Context& context, const Text& helpDirectory, const Text& selectMask,
                                  const Text& ignoreMask, std::vector<Text>& paths, Text& error);

/// Prints the pages that `SelectPagesToPrint` chooses, one after the other, by the browser pane, and then
/// shows the page of before again. False with a sentence where no page is chosen; a stop ends the printing
/// without one.
bool PrintSelectedPages(const Context& context, const Text& helpDirectory, const Text& selectMask,
                        const Text& ignoreMask, Text& error);

} // namespace ostrel::help

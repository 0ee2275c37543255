#pragma once

#include <cstddef>

#include "help/SearchScope.h"

namespace ostrel::help {

/// How much a search takes into memory, in bytes. Pages beyond it are left empty in the store.
struct SearchBounds {
    std::size_t page = std::size_t{64} << 20;
    std::size_t store = std::size_t{1} << 30;
};

/// Loads the pages of a mask, of `SearchMask` where it is empty, into the store, in the place of those that
/// are there, and prepares them for the present options. A mask without a backslash looks into
/// `DirectoryHelp`. Pages that cannot be read stay empty without a message; `lastFileError` has the sentence
/// of the last page, empty for one that was read. False with a sentence for a mask that names no directory,
/// and after a stop, which leaves the store empty.
bool SearchLoad(const SearchScope& scope, const Text& mask, Text& lastFileError, Text& error,
                const SearchBounds& bounds = {});

} // namespace ostrel::help

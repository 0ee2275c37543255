#pragma once

#include "help/SearchProperties.h"

namespace ostrel::help {

// What a user asks a search for, between the dialog and the options.

/// The most lines of results; 0 for all.
Long ResultLines(const SearchProperties& search);

/// The item, counted from 1, of the list "All", "First 10", "First 25", "First 100" that shows so many lines.
Long ShowItemOfLines(Long lines);
/// The lines that an item of that list means; 0 for all.
Long LinesOfShowItem(Long item);

/// The address that hands the phrase, in double quotes, to a search engine of the web.
Text RemoteSearchAddress(const SearchProperties& search, const Text& phrase);

} // namespace ostrel::help

#pragma once

#include <iosfwd>

#include "cli/DirectorySearch.h"

namespace ostrel::cli {

/// Prints a line for each page, best first: percentage, title and path, and below it the text around the
/// first place where that was asked for. On a terminal the place is marked.
void PrintList(DirectorySearch& search, std::ostream& output);
/// Prints phrase, count and results as one JSON object on one line.
void PrintJson(DirectorySearch& search, std::ostream& output);
/// Writes the page of results. Throws `tables::InputError`.
void WriteResultsPage(DirectorySearch& search);

} // namespace ostrel::cli

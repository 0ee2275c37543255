#pragma once

#include "help/SearchRun.h"
#include "help/SearchScope.h"

namespace ostrel::help {

/// Writes the results as HTML: the phrase, a list of links with percentages, and how many more there are.
Text ResultsHTML(const html::PageScope& scope, const SearchPages& pages, const SearchTerms& terms,
                 const Ranking& ranking);

/// Searches the loaded pages and puts the results into `SearchResults`. False with a sentence where no pages
/// are loaded or the phrase is empty, and after a stop, which leaves pages and results as they were.
bool SearchResultsCreate(const SearchScope& scope, const Text& phrase, bool matchCase, bool wholeWords,
                         Text& error);

/// Makes the page of results and writes it to the next work file, whose path is then `page`. False with a
/// sentence where there are no results or no help directory. A page that cannot be written has a sentence in
/// `error` too, but the result is True and the page is to be shown.
bool SearchDisplay(const SearchScope& scope, Text& page, Text& error);

} // namespace ostrel::help

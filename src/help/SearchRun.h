#pragma once

#include <optional>

#include "help/SearchProperties.h"
#include "help/SearchRanking.h"
#include "help/SearchStore.h"
#include "platform/Context.h"

namespace ostrel::help {

/// What is searched for, and where.
struct SearchTerms {
    Text phrase;
    bool matchCase = false, wholeWords = false;
    bool inTitle = true, inHead = false, inBody = true; ///< the body leaves the head aside
    bool withoutTags = true;                            ///< tags of the body are no text
    std::size_t mostPages = 0;                          ///< how many ranked pages are wanted, 0 for all
};

/// The terms of a phrase with what the options say.
SearchTerms TermsOf(const SearchProperties& search, const Text& phrase, bool matchCase, bool wholeWords);

/// Searches all pages and ranks those that hold the phrase. Shows the gauge and gives way after each page;
/// nothing after a stop.
std::optional<Ranking> SearchAllPages(const Context& context, SearchPages& pages, const SearchTerms& terms);

} // namespace ostrel::help

#pragma once

#include <string>

#include "cli/HelpDirectory.h"
#include "help/SearchRun.h"

namespace ostrel::cli {

/// The options of `ostrel search`.
struct SearchOptions {
    std::string directory, phrase;
    bool matchCase = false, wholeWords = false;
    bool title = false, header = false, body = false; ///< none of them for titles and bodies
    bool tags = false;
    int lines = 0; ///< 0 for all
    bool show = false, json = false, overwrite = false;
    std::string page; ///< the file for a page of results, or empty
};

/// One search over the pages of a directory.
class DirectorySearch {
public:
    /// Throws `tables::InputError` where the directory cannot be read or the phrase is empty.
    explicit DirectorySearch(const SearchOptions& options);

    /// Loads all pages and ranks those that match. Throws `tables::Interruption`.
    void Run();

    const SearchOptions& Options() const { return options_; }
    const help::SearchTerms& Terms() const { return terms_; }
    const help::Ranking& Results() const { return ranking_; }
    /// The loaded pages; their file names are links for the page of results.
    help::SearchPages& Pages() { return pages_; }
    /// The system's path of a page.
    std::string Path(std::size_t page) const { return directory_.Path(directory_.Names()[page]); }
    std::string Omissions() const { return directory_.Omissions(); }

private:
    const SearchOptions& options_;
    HelpDirectory directory_;
    help::SearchTerms terms_;
    help::SearchPages pages_;
    help::Ranking ranking_;
};

} // namespace ostrel::cli

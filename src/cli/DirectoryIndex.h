#pragma once

#include <string>

#include "cli/HelpDirectory.h"
#include "help/IndexStore.h"

namespace ostrel::cli {

/// The titles and headings of the pages of a directory, sorted as a reader expects.
class DirectoryIndex {
public:
    /// `page` is the system's path of the page that shows the index: links start there, and it is left out
    /// itself. Headings below the level, 1 to 6, are left out; all of them where it is 0. Throws
    /// `tables::InputError` and `tables::Interruption`.
    DirectoryIndex(const std::string& directory, const std::string& page, Long lowestLevel);

    /// The entries in their order. A name that several places have is an entry of its own, with the title of
    /// each page below it.
    help::IndexStore Entries() const;
    /// How many pages were read.
    std::size_t Pages() const { return pages_; }
    std::string Omissions() const { return directory_.Omissions(); }

private:
    /// A name and one place that it leads to.
    struct Place {
        Text key, name, hyperlink;
        Text title; ///< of its page
    };

    void AddPage(TextView html, const std::string& fileName, const Text& hyperlink, Long lowestLevel);

    HelpDirectory directory_;
    std::vector<Place> places_;
    std::size_t pages_ = 0;
};

} // namespace ostrel::cli

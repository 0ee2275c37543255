#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "text/Text.h"

namespace ostrel::cli {

/// The pages of a directory and of those below it, in the order of their names.
class HelpDirectory {
public:
    /// Lists the pages: files whose names end in .htm, .html or .xhtml. Links to directories are not
    /// followed. Throws `tables::InputError` where the directory cannot be read.
    explicit HelpDirectory(const std::string& path);

    /// Names relative to the directory.
    const std::vector<std::string>& Names() const { return names_; }
    /// The system's path of a page, as a user would write it.
    std::string Path(const std::string& name) const;

    /// Calls `take` with the place and the HTML of each page, one after the other. Pages that cannot be read
    /// or are larger than 64 MB come as empty texts and are counted. Throws `tables::Interruption`.
    void Read(const std::function<void(std::size_t place, Text html)>& take);
    /// What was not read, as one sentence; empty where everything was.
    std::string Omissions() const;

private:
    std::string path_;
    std::vector<std::string> names_;
    std::size_t unreadable_ = 0, tooLarge_ = 0;
};

/// The address of a page for a link on a page in another place, both as the system's paths.
Text LinkTo(const std::string& page, const std::string& from);

} // namespace ostrel::cli

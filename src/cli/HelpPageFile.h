#pragma once

#include <string>

#include "control/OstrelWebHelp.h"
#include "platform/headless/HeadlessPlatform.h"

namespace ostrel::cli {

/// A page that a command makes of other pages, such as search results, in the look of the reports.
class HelpPageFile {
public:
    /// `path` is the system's path of the page, `maker` the command's name, which the page carries. Throws
    /// `tables::InputError` where the path is a file that this command has not made, unless `overwrite`.
    HelpPageFile(std::string path, const std::string& maker, bool overwrite);

    /// Writes the page in the place of the old one in one step; title and body are HTML. Throws
    /// `tables::InputError`.
    void Write(const Text& title, const Text& body);

private:
    std::string path_;
    Text mark_;
    Text componentPath_;
    HeadlessPlatform platform_;
    OstrelWebHelp web_;
};

} // namespace ostrel::cli

#pragma once

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The sub-command `index`: makes an index page of the titles and headings of a help directory.
void AddIndexCommand(CLI::App& app, int& status);

} // namespace ostrel::cli

#pragma once

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The sub-command `search`: ranks the pages of a help directory by how well they match a phrase.
void AddSearchCommand(CLI::App& app, int& status);

} // namespace ostrel::cli

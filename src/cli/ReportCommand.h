#pragma once

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The sub-command `report`: makes the pages of a table from a file. When the command line asks for it, it
/// runs at once and leaves the exit status in `status`.
void AddReportCommand(CLI::App& app, int& status);

} // namespace ostrel::cli

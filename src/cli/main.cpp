#include <csignal>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/CallCommand.h"
#include "cli/IndexCommand.h"
#include "cli/ReferenceCommand.h"
#include "cli/ReportCommand.h"
#include "cli/SearchCommand.h"
#include "control/Version.h"

int main(int argc, char** argv) {
#if defined(SIGXFSZ)
    // A file that outgrows the user's limit is a failed write, and not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    CLI::App app("Reports, help pages and the many services of OstrelWebHelp from the command line.",
                 "ostrel");
    app.require_subcommand(1);
    app.set_version_flag("--version", std::to_string(ostrel::VersionMajor) + "." +
                                          std::to_string(ostrel::VersionMinor) + "." +
                                          std::to_string(ostrel::VersionRevision));
    int status = 0;
    ostrel::cli::AddReportCommand(app, status);
    ostrel::cli::AddSearchCommand(app, status);
    ostrel::cli::AddIndexCommand(app, status);
    ostrel::cli::AddCallCommand(app, status);
    ostrel::cli::AddReferenceCommand(app, status);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        // Wrong usage is 2; asking for help is a success.
        return app.exit(error) == 0 ? 0 : 2;
    }
    return status;
}

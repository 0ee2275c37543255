#include "cli/ReportCommand.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <new>

#include "cli/Interrupt.h"
#include "cli/ReportOptions.h"
#include "cli/ReportRun.h"
#include "cli/Usage.h"
#include "tables/InputError.h"

namespace ostrel::cli {

namespace {

int Failed(const char* sentence, int status) {
    std::fprintf(stderr, "ostrel: %s\n", sentence);
    return status;
}

int RunReport(const ReportOptions& options) {
    const InterruptGuard guard;
    try {
        return ReportRun(options).Run();
    } catch (const tables::InputError& error) {
        return Failed(error.what(), 1);
    } catch (const UsageError& error) {
        return Failed(error.what(), 2);
    } catch (const tables::Interruption&) {
        std::fputs("Interrupted by User\n", stderr);
        return 130;
    } catch (const std::bad_alloc&) {
        return Failed("There is not enough memory for this table.", 1);
    }
}

} // namespace

void AddReportCommand(CLI::App& app, int& status) {
    CLI::App* command =
        app.add_subcommand("report", "Make linked HTML pages of a CSV file or a SQLite query");
    auto options = std::make_shared<ReportOptions>();
    DeclareReportOptions(*command, *options);
    command->callback([options, &status] { status = RunReport(*options); });
}

} // namespace ostrel::cli

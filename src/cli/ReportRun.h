#pragma once

#include <chrono>
#include <map>
#include <memory>

#include "cli/InputTable.h"
#include "cli/ProgressLine.h"
#include "cli/ReportFiles.h"
#include "cli/ReportOptions.h"
#include "control/OstrelWebHelp.h"

namespace ostrel::cli {

/// One run of `ostrel report`: reads the input, makes the pages, tells what came of it.
class ReportRun {
public:
    explicit ReportRun(const ReportOptions& options);

    /// The exit status. Throws `InputError`, `UsageError` and `Interruption` while nothing is written yet.
    int Run();

private:
    void Read();
    void SetUp();
    void Listen();
    int MakePages();
    int Tell(bool made, const Text& message) const;
    void PageDone(const Text& path, bool isNew, bool failed, Long bytes);
    void PassOnStop();
    Text PageName() const;
    Text TitleText() const;

    const ReportOptions& options_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    ProgressLine progress_;
    InputTable table_;
    Platform platform_;
    ReportFiles* files_ = nullptr; ///< of the platform
    std::unique_ptr<OstrelWebHelp> web_;
    Text page_; ///< name of the main page

    std::size_t written_ = 0, unchanged_ = 0;
    std::uint64_t bytes_ = 0;
    std::map<Text, Text> failures_; ///< the page and why
};

} // namespace ostrel::cli

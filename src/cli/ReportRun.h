#pragma once

#include <chrono>
#include <memory>

#include "cli/ProgressLine.h"
#include "cli/ReportOptions.h"
#include "control/OstrelWebHelp.h"
#include "tables/InputTable.h"
#include "tables/PageFailures.h"
#include "tables/PageHeads.h"
#include "tables/ReportFiles.h"

namespace ostrel::cli {

/// One run of `ostrel report`: reads the input, makes the pages, prints the result.
class ReportRun {
public:
    explicit ReportRun(const ReportOptions& options);

    /// The exit status. Throws `tables::InputError`, `UsageError` and `tables::Interruption` while nothing is
    /// written yet.
    int Run();

private:
    void Read();
    void SetUp();
    Text SubTitle() const;
    void Listen();
    /// Ends the run where files that no report made would be replaced.
    void CheckFilesThere();
    int MakePages();
    int Tell(bool complete, const std::string& trouble) const;
    void PageDone(const Text& path, bool isNew, bool failed, Long bytes);
    Text PageName() const;
    Text TitleText() const;

    const ReportOptions& options_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    ProgressLine progress_;
    tables::InputTable table_;
    Platform platform_;
    tables::ReportFiles* files_ = nullptr; ///< of the platform
    std::unique_ptr<OstrelWebHelp> web_;
    Text page_;               ///< name of the main page
    bool csvIsInput_ = false; ///< the CSV file's name is that of the input
    std::unique_ptr<tables::PageHeads> heads_;

    std::size_t written_ = 0, unchanged_ = 0;
    std::uint64_t bytes_ = 0;
    tables::PageFailures failures_;
};

} // namespace ostrel::cli

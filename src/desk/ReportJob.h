#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "desk/ReportPlaces.h"
#include "desk/ReportPlan.h"
#include "desk/TableFile.h"
#include "desk/Work.h"
#include "desk/YieldingCalls.h"
#include "tables/PageFailures.h"
#include "tables/PageHeads.h"
#include "tables/ReportFiles.h"

namespace ostrel::desk {

/// What came of a report.
struct ReportOutcome {
    bool made = false;        ///< every page was written
    bool stopped = false;     ///< the user ended it
    QString directoryTrouble; ///< nothing was begun, since the directory cannot be written
    QStringList troubles;     ///< what could not be written and why, a sentence each
    QString page;             ///< system's path of the main page
    qint64 cells = 0;         ///< that the main page shows
    int written = 0, unchanged = 0;
    qint64 deleted = 0; ///< files of the last report that this one has no longer
};

/// One making of a report by the control of a widget.
class ReportJob {
public:
    ReportJob(desktop::OstrelWebHelpWidget& widget, Work& work, const TableFile& file,
              const ReportPlan& plan);
    ~ReportJob();
    ReportJob(const ReportJob&) = delete;
    ReportJob& operator=(const ReportJob&) = delete;

    /// Finds out which files exist already and changes nothing. Runs before `Run`.
    StandingFiles Look();
    /// Lets `Run` replace the files that were found.
    void AllowAll() { files_->AllowAll(); }
    /// Runs as the work in hand, once.
    ReportOutcome Run();

private:
    void Listen();
    void StopListening();
    void SetProperties();
    void SetColumns();
    Text SubTitle() const;
    void MakePages();
    void Finish(bool made, const Text& message);
    void PageDone(const Text& path, bool isNew, bool failed);
    void ShowProgress(Long records);

    desktop::OstrelWebHelpWidget& widget_;
    OstrelWebHelp& web_;
    Work& work_;
    YieldingCalls calls_;
    const TableFile& file_;
    const ReportPlan& plan_;
    const tables::InputTable& table_;
    Text page_;                                  ///< name of the main page
    std::unique_ptr<tables::ReportFiles> owned_; ///< until the platform has them
    tables::ReportFiles* files_;
    std::unique_ptr<tables::PageHeads> heads_;
    ReportOutcome outcome_;
    tables::PageFailures failures_;
    qint64 pagesDone_ = 0;
    std::vector<std::function<void()>> endListening_;
};

} // namespace ostrel::desk

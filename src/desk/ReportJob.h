#pragma once

#include <QMap>
#include <QStringList>
#include <functional>
#include <vector>

#include "cli/ReportFiles.h"
#include "desk/ReportPlan.h"
#include "desk/TableFile.h"
#include "desk/Work.h"
#include "desk/YieldingCalls.h"

namespace ostrel::desk {

/// What came of a report.
struct ReportOutcome {
    bool made = false;        ///< every page stands
    bool stopped = false;     ///< the user ended it
    QString directoryTrouble; ///< nothing was begun, since the directory cannot be written
    QStringList troubles;     ///< what could not be written and why, a sentence each
    QString page;             ///< system's path of the main page
    qint64 cells = 0;         ///< that the main page shows
    int written = 0, unchanged = 0;
};

/// One making of a report by the control of a widget.
class ReportJob {
public:
    ReportJob(desktop::OstrelWebHelpWidget& widget, Work& work, const TableFile& file,
              const ReportPlan& plan);
    ~ReportJob();
    ReportJob(const ReportJob&) = delete;
    ReportJob& operator=(const ReportJob&) = delete;

    /// Runs as the work in hand.
    ReportOutcome Run();

private:
    void Listen();
    void SetProperties();
    void SetColumns();
    Text SubTitle() const;
    void MakePages();
    void PageDone(const Text& path, bool isNew, bool failed);
    void ShowProgress(Long records);

    desktop::OstrelWebHelpWidget& widget_;
    OstrelWebHelp& web_;
    Work& work_;
    YieldingCalls calls_;
    const TableFile& file_;
    const ReportPlan& plan_;
    const cli::InputTable& table_;
    Text page_; ///< name of the main page
    cli::ReportFiles* files_ = nullptr;
    ReportOutcome outcome_;
    QMap<QString, QString> failures_; ///< the page and why
    qint64 pagesDone_ = 0;
    std::vector<std::function<void()>> endListening_;
};

} // namespace ostrel::desk

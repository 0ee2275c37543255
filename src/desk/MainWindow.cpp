#include "desk/MainWindow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QStatusBar>
#include <QUrl>

#include "desk/Counted.h"
#include "desk/ReportPlaces.h"
#include "desktop/QtText.h"
#include "platform/native/NativePaths.h"

namespace ostrel::desk {

namespace {

/// What the browser has been seen to show within half a minute, in 1.5 GB of memory.
constexpr qint64 MostCellsAtOnce = 3'000'000;

} // namespace

MainWindow::MainWindow()
    : widget_(std::make_unique<desktop::OstrelWebHelpWidget>()), work_(*widget_), actions_(AddMenus(*this)),
      status_(*this, *widget_, work_, actions_), state_(*widget_->World().settings), notice_(new NoticeBar),
      commands_(*this, *widget_, work_, *notice_), dock_(new QDockWidget), panels_(new QStackedWidget),
      options_(new OptionsPanel), helpPages_(new HelpPagesPanel) {
    Arrange();
    ConnectActions();
    RestoreState();
    WorkChanged();
    ShowHome(pages_.Welcome(widget_->Web()));
}

MainWindow::~MainWindow() { widget_.reset(); }

void MainWindow::Open(const QString& path) {
    if (work_.Running()) return;
    const QFileInfo info(path);
    const QString suffix = info.suffix().toLower();
    if (info.isDir())
        OpenPages(info.absoluteFilePath(), {});
    else if (suffix == "htm" || suffix == "html")
        OpenPages(info.absolutePath(), info.fileName());
    else
        OpenTable(info.absoluteFilePath(), {});
}

void MainWindow::OpenTable(const QString& path, const QString& table) {
    if (work_.Running()) return;
    notice_->Clear();
    KeepPlan();
    const QString name = QFileInfo(path).fileName();
    TableReading reading;
    {
        const Work::Turn turn(work_, "Reading " + name + "…");
        reading = ReadTableFile(path, table, work_);
    }
    if (!reading.file && file_) options_->MarkTable(file_.chosen);
    if (!reading.trouble.isEmpty()) return notice_->TellTrouble(reading.trouble);
    if (!reading.file) return statusBar()->showMessage("Reading " + name + " was stopped.");
    file_ = std::move(reading.file);
    options_->ShowFile(file_, PlanFor(file_));
    state_.AddRecent(path);
    tableHome_ = pages_.Preview(widget_->Web(), file_);
    ShowPanel(*options_);
    ShowHome(tableHome_);
}

void MainWindow::OpenPages(const QString& directory, const QString& page) {
    notice_->Clear();
    const auto path = NativePaths::FromSystem(directory.toStdString());
    if (!path)
        return notice_->TellTrouble("The pages of " + directory +
                                    " can't be shown: its name has characters that addresses of pages lack.");
    if (!helpPages_->ShowDirectory(directory))
        return notice_->TellTrouble("There are no pages (*.htm, *.html) in " + directory + ".");
    OstrelWebHelp& web = widget_->Web();
    web.DirectoryHelp(*path);
    ShowPanel(*helpPages_);
    state_.AddRecent(directory);
    if (page.isEmpty())
        web.ButtonClick("Home");
    else
        ShowHelpPage(page);
    web.HelpPageLoadNow();
}

void MainWindow::ShowHelpPage(const QString& name) {
    OstrelWebHelp& web = widget_->Web();
    Text error;
    if (!web.HelpPageLoad(desktop::FromQt(name), error)) return notice_->TellTrouble(desktop::ToQt(error));
    // The user may have left the help page by typing an address.
    const Text location = web.BuildPath(web.DirectoryHelp(), desktop::FromQt(name));
    if (web.HelpPageNext().empty() && web.LocationURL() != location) web.LoadURL(location, error);
}

void MainWindow::MakeReport() {
    if (work_.Running() || !file_ || !TableOnView()) return;
    if (file_.Stale()) {
        OpenTable(file_.path, file_.chosen);
        if (work_.StopWanted() || !notice_->Trouble().isEmpty()) return;
    }
    notice_->Clear();
    statusBar()->clearMessage();
    KeepPlan();
    const ReportPlan plan = options_->Plan();
    if (plan.directory.isEmpty()) return TellDirectoryTrouble("The report needs a directory.");
    if (plan.ShownColumns() == 0)
        return notice_->TellTrouble("No column is shown; the report needs at least one.");
    ReportJob job(*widget_, work_, file_, plan);
    if (!MayWrite(job, plan.directory)) return;
    QElapsedTimer clock;
    clock.start();
    ReportOutcome outcome;
    {
        const Work::Turn turn(work_, "Making the report…");
        outcome = job.Run();
    }
    if (!outcome.directoryTrouble.isEmpty()) return TellDirectoryTrouble(outcome.directoryTrouble);
    options_->TellDirectoryTrouble({});
    TellOutcome(outcome, static_cast<double>(clock.elapsed()) / 1000);
}

bool MainWindow::MayWrite(ReportJob& job, const QString& directory) {
    StandingFiles standing;
    {
        const Work::Turn turn(work_, "Looking at " + directory + "…");
        standing = job.Look();
    }
    if (!standing.trouble.isEmpty()) {
        TellDirectoryTrouble(standing.trouble);
        return false;
    }
    if (!work_.StopWanted() && !standing.Any()) return true;
    if (!work_.StopWanted() && AskToReplace(*this, standing, directory)) {
        job.AllowAll();
        return true;
    }
    notice_->TellTrouble("No report was made; nothing has changed.");
    return false;
}

void MainWindow::TellDirectoryTrouble(const QString& sentence) {
    // The message is shown at its field, which may be hidden.
    ReturnTo(*options_);
    options_->TellDirectoryTrouble(sentence);
}

QString MainWindow::Trouble() const {
    return notice_->Trouble().isEmpty() ? options_->DirectoryTrouble() : notice_->Trouble();
}

void MainWindow::TellOutcome(const ReportOutcome& outcome, double seconds) {
    const QString counts = Counted(outcome.written, "page") + " written, " +
                           QLocale(QLocale::English).toString(outcome.unchanged) + " unchanged";
    if (outcome.stopped) {
        statusBar()->showMessage("The report was stopped and is not complete: " + counts + ".");
        return;
    }
    if (!outcome.made)
        return notice_->TellTroubles("The report is not complete: " + counts + ".", outcome.troubles);
    QString told = QString("The report is made: %1, in %2 seconds. It lies in %3.")
                       .arg(counts, QString::number(seconds, 'f', 2), QFileInfo(outcome.page).path());
    if (outcome.deleted > 0)
        told += " " + Counted(outcome.deleted, "file") + " of the last report " +
                (outcome.deleted == 1 ? "was" : "were") + " taken away.";
    const bool large = outcome.cells > MostCellsAtOnce;
    if (large)
        told += " Its main page has " + Counted(outcome.cells, "cell") +
                ", which the browser may take minutes to show or fail to; Home loads it all the same.";
    notice_->TellSuccess(told);
    report_ = outcome.page;
    state_.SetDirectory("Reports", QFileInfo(QFileInfo(report_).path()).path());
    WorkChanged();
    // What the code page has no name for has an address all the same.
    const Text address = NativePaths::FromSystem(report_.toStdString())
                             .value_or(QUrl::fromLocalFile(report_).toEncoded().toStdString());
    tableHome_ = address;
    large ? widget_->Web().HomePage(address) : ShowHome(address);
}

ReportPlan MainWindow::PlanFor(const TableFile& file) {
    ReportPlan plan = FirstPlan(*file.table);
    QString base = state_.Directory("Reports");
    if (base.isEmpty()) {
        base = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!QFileInfo(base).isDir()) base = QDir::homePath();
        base += "/Ostrel reports";
    }
    plan.directory = FreeDirectory(base, file, state_.DirectoriesOfOthers(file.path));
    ApplyPlanText(state_.Plan(file.path, file.chosen), *file.table, plan);
    return plan;
}

void MainWindow::KeepPlan() {
    if (!file_) return;
    const ReportPlan plan = options_->Plan();
    state_.SetPlan(file_.path, file_.chosen, PlanText(plan, *file_.table), plan.directory);
}

void MainWindow::ShowHome(const Text& address) {
    OstrelWebHelp& web = widget_->Web();
    web.HomePage(address);
    Text error;
    if (!address.empty() && web.LocationURL() == address)
        web.RefreshCompletely();
    else
        web.LoadURL(address, error);
}

} // namespace ostrel::desk

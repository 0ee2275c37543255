#include "desk/MainWindow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QStatusBar>
#include <QUrl>

#include "desk/Counted.h"
#include "desktop/QtText.h"
#include "platform/native/NativePaths.h"

namespace ostrel::desk {

namespace {

/// What the browser shows within a minute; at a million cells it has been seen to run out of memory.
constexpr qint64 MostCellsAtOnce = 800'000;

} // namespace

MainWindow::MainWindow()
    : widget_(std::make_unique<desktop::OstrelWebHelpWidget>()), work_(*widget_), actions_(AddMenus(*this)),
      status_(*this, *widget_, work_, actions_), state_(*widget_->World().settings), notice_(new NoticeBar),
      dock_(new QDockWidget), panels_(new QStackedWidget), options_(new OptionsPanel),
      helpPages_(new HelpPagesPanel) {
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
    ShowPanel(*options_);
    state_.AddRecent(path);
    WorkChanged();
    ShowHome(pages_.Preview(widget_->Web(), file_));
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
    const Text first = desktop::FromQt(helpPages_->FirstPage());
    web.DirectoryHelp(*path);
    web.HomePage(first);
    web.IndexPage(first);
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
    // The help page on view may have been left for an address that was typed.
    const Text location = web.BuildPath(web.DirectoryHelp(), desktop::FromQt(name));
    if (web.HelpPageNext().empty() && web.LocationURL() != location) web.LoadURL(location, error);
}

void MainWindow::MakeReport() {
    if (work_.Running() || !file_) return;
    if (file_.Stale()) {
        OpenTable(file_.path, file_.chosen);
        if (work_.StopWanted() || !notice_->Trouble().isEmpty()) return;
    }
    notice_->Clear();
    statusBar()->clearMessage();
    KeepPlan();
    const ReportPlan plan = options_->Plan();
    if (plan.directory.isEmpty()) return TellDirectoryTrouble("The report needs a directory.");
    QElapsedTimer clock;
    clock.start();
    ReportOutcome outcome;
    {
        const Work::Turn turn(work_, "Making the report…");
        outcome = ReportJob(*widget_, work_, file_, plan).Run();
    }
    if (!outcome.directoryTrouble.isEmpty()) return TellDirectoryTrouble(outcome.directoryTrouble);
    options_->TellDirectoryTrouble({});
    TellOutcome(outcome, static_cast<double>(clock.elapsed()) / 1000);
}

void MainWindow::TellDirectoryTrouble(const QString& sentence) {
    // It stands at its field, which may be hidden with the panel.
    actions_.panel->setChecked(true);
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
    plan.directory = base + "/" + QString(file.Stem()).replace('/', '_');
    ApplyPlanText(state_.Plan(file.path, file.chosen), *file.table, plan);
    return plan;
}

void MainWindow::KeepPlan() {
    if (file_) state_.SetPlan(file_.path, file_.chosen, PlanText(options_->Plan(), *file_.table));
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

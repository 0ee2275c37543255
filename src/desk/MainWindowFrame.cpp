#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "control/Version.h"
#include "desk/MainWindow.h"
#include "desktop/PaneAddress.h"
#include "desktop/QtPane.h"
#include "desktop/QtText.h"
#include "desktop/Twips.h"
#include "text/CodePage.h"

namespace ostrel::desk {

namespace {

bool OpensFolders() {
    static const bool opens = !QStandardPaths::findExecutable("xdg-open").isEmpty();
    return opens;
}

/// Milliseconds until a yield that is not ours may have ended.
constexpr int RetryDelay = 50;

/// Returns the path of the single local file or directory being dragged; empty for anything else.
QString DraggedPath(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
}

} // namespace

void MainWindow::Arrange() {
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notice_);
    layout->addWidget(widget_.get(), 1);
    setCentralWidget(centre);

    panels_->addWidget(options_);
    panels_->addWidget(helpPages_);
    panels_->setMinimumWidth(340);
    dock_->setObjectName("panel");
    dock_->setFeatures(QDockWidget::NoDockWidgetFeatures);
    dock_->setTitleBarWidget(new QWidget(dock_));
    dock_->setWidget(panels_);
    addDockWidget(Qt::LeftDockWidgetArea, dock_);
    resizeDocks({dock_}, {360}, Qt::Horizontal);
    dock_->hide();

    OstrelWebHelp& web = widget_->Web();
    web.ProgramName(ApplicationTitle);
    // Only the buttons whose actions are implemented.
    web.SearchLocation(owhSearchLocal);
    web.ToolbarFormat("Back Forward Space Stop Refresh Home Space Full");
    setAcceptDrops(true);
    // The engine would take what is dropped for a page to load.
    widget_->Pane().View().setAcceptDrops(false);
}

void MainWindow::ConnectActions() {
    OstrelWebHelp& web = widget_->Web();
    connect(&work_, &Work::Changed, this, &MainWindow::WorkChanged);
    connect(actions_.open, &QAction::triggered, this, &MainWindow::AskForFile);
    connect(actions_.openDirectory, &QAction::triggered, this, &MainWindow::AskForDirectory);
    connect(actions_.openAddress, &QAction::triggered, this, [this] { commands_.Press("Open"); });
    connect(actions_.properties, &QAction::triggered, this, [this] { commands_.Press("Properties"); });
    connect(actions_.print, &QAction::triggered, this, [this] { commands_.Print(); });
    connect(actions_.printToPdf, &QAction::triggered, this, &MainWindow::PrintToPdf);
    connect(actions_.search, &QAction::triggered, this,
            [this] { commands_.Search(helpPages_->Directory()); });
    connect(actions_.recent, &QMenu::aboutToShow, this, &MainWindow::FillRecent);
    connect(actions_.quit, &QAction::triggered, this, &QWidget::close);
    connect(actions_.make, &QAction::triggered, this, &MainWindow::MakeReport);
    connect(actions_.stop, &QAction::triggered, &work_, &Work::Stop);
    connect(actions_.showFolder, &QAction::triggered, this, &MainWindow::ShowFolder);
    connect(actions_.panel, &QAction::toggled, this,
            [this](bool on) { dock_->setVisible(on && PanelFilled()); });
    connect(actions_.reportOptions, &QAction::triggered, this, [this] { ReturnTo(*options_); });
    connect(actions_.helpPages, &QAction::triggered, this, [this] { ReturnTo(*helpPages_); });
    connect(actions_.toolbar, &QAction::toggled, this, [&web](bool on) { web.ToolbarVisible(on); });
    connect(actions_.address, &QAction::toggled, this, [&web](bool on) { web.ToolbarAddressVisible(on); });
    connect(actions_.about, &QAction::triggered, this, &MainWindow::ShowAbout);
    connect(options_, &OptionsPanel::MakeWanted, this, &MainWindow::MakeReport);
    connect(options_, &OptionsPanel::TableWanted, this,
            [this](const QString& table) { OpenTable(file_.path, table); });
    connect(helpPages_, &HelpPagesPanel::PageWanted, this, &MainWindow::ShowHelpPage);
    web.events.BeforeNavigate2.Listen([this](Text& address, Text&, Flag& cancel) {
        if (LeaveToOthers(address)) cancel = true;
    });
    connect(&status_, &PaneStatus::PageShown, this, [this, &web](const QString& address) {
        const QString directory = desktop::ToQt(web.AddMissingBackslash(web.DirectoryHelp()));
        helpPages_->Mark(address.startsWith(directory) ? address.mid(directory.size()) : QString());
    });
}

void MainWindow::WorkChanged() {
    const bool free = !work_.Running();
    for (QAction* action :
         {actions_.open, actions_.openDirectory, actions_.openAddress, actions_.print, actions_.printToPdf,
          actions_.properties, actions_.recent->menuAction(), actions_.about})
        action->setEnabled(free);
    actions_.make->setEnabled(free && file_ && TableOnView());
    actions_.reportOptions->setEnabled(free && file_ && !TableOnView());
    actions_.helpPages->setEnabled(free && TableOnView() && !helpPages_->Directory().isEmpty());
    actions_.search->setEnabled(free && !TableOnView() && !helpPages_->Directory().isEmpty());
    actions_.showFolder->setEnabled(free && OpensFolders() && !report_.isEmpty());
    actions_.panel->setEnabled(free && PanelFilled());
    options_->setEnabled(free);
    helpPages_->setEnabled(free);
    if (free && closeWanted_) QTimer::singleShot(0, this, &QWidget::close);
}

void MainWindow::RestoreState() {
    state_.RestoreWindow(*this);
    dock_->hide();
    actions_.panel->setChecked(state_.Option("Panel", true));
    actions_.toolbar->setChecked(state_.Option("Toolbar", true));
    actions_.address->setChecked(state_.Option("Address", false));
}

void MainWindow::SaveState() {
    KeepPlan();
    state_.SaveWindow(*this);
    state_.SetOption("Panel", actions_.panel->isChecked());
    state_.SetOption("Toolbar", actions_.toolbar->isChecked());
    state_.SetOption("Address", actions_.address->isChecked());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // A yielding caller is still inside the control and continues with it afterwards.
    if (work_.Running() || widget_->InYield()) {
        event->ignore();
        closeWanted_ = true;
        work_.Stop();
        if (!work_.Running()) QTimer::singleShot(RetryDelay, this, &QWidget::close);
        return;
    }
    SaveState();
    QMainWindow::closeEvent(event);
    emit Closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!work_.Running() && !DraggedPath(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = DraggedPath(*event->mimeData());
    if (work_.Running() || path.isEmpty()) return;
    event->acceptProposedAction();
    // The program that it was dragged from waits for the end of this event.
    QTimer::singleShot(0, this, [this, path] { Open(path); });
}

void MainWindow::FillRecent() {
    actions_.recent->clear();
    for (const QString& path : state_.Recent()) {
        QString shown = path;
        connect(actions_.recent->addAction(shown.replace('&', "&&")), &QAction::triggered, this,
                [this, path] { Open(path); });
    }
    if (actions_.recent->isEmpty()) actions_.recent->addAction("Nothing yet")->setEnabled(false);
}

void MainWindow::AskForFile() {
    const QString path =
        QFileDialog::getOpenFileName(this, "Open", state_.Directory("Open"),
                                     "Tables (*.csv *.tsv *.txt *.db *.sqlite *.sqlite3);;All files (*)");
    if (path.isEmpty()) return;
    state_.SetDirectory("Open", QFileInfo(path).path());
    Open(path);
}

void MainWindow::PrintToPdf() {
    const QString directory = commands_.PrintToPdf(state_.Directory("Pdf"));
    if (!directory.isEmpty()) state_.SetDirectory("Pdf", directory);
}

void MainWindow::AskForDirectory() {
    const QString path =
        QFileDialog::getExistingDirectory(this, "Open Help Directory", state_.Directory("Help"));
    if (path.isEmpty()) return;
    state_.SetDirectory("Help", path);
    Open(path);
}

void MainWindow::ShowPanel(QWidget& content) {
    panels_->setCurrentWidget(&content);
    dock_->setVisible(actions_.panel->isChecked());
    OstrelWebHelp& web = widget_->Web();
    web.HomePage(TableOnView() ? tableHome_ : desktop::FromQt(helpPages_->FirstPage()));
    if (!TableOnView()) web.IndexPage(web.HomePage());
    WorkChanged();
}

void MainWindow::ReturnTo(QWidget& content) {
    actions_.panel->setChecked(true);
    if (panels_->currentWidget() != &content) ShowPanel(content);
}

void MainWindow::ShowFolder() {
    const QString directory = QFileInfo(report_).path();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(directory)))
        notice_->TellTrouble("No program here shows folders; the report lies in " + directory + ".");
}

bool MainWindow::LeaveToOthers(const Text& address) {
    if (!EndsWithText(address, ".csv")) return false;
    const QUrl url = desktop::UrlOf(address);
    if (!url.isLocalFile()) return false;
    // The engine waits for the answer to its question.
    QTimer::singleShot(0, this, [this, url] {
        if (!QDesktopServices::openUrl(url))
            notice_->TellTrouble("No program here opens tables; this one lies in " + url.toLocalFile() + ".");
    });
    return true;
}

void MainWindow::ShowAbout() {
    const desktop::Twips twips(*this);
    const QPoint place = geometry().center() - QPoint(width() / 6, height() / 4);
    widget_->Web().ShowOstrelAboutBox(
        ApplicationTitle, VersionMajor, VersionMinor, VersionRevision, {},
        "Reports that can be sorted, walked and passed on, made of CSV files and SQLite databases.", {},
        static_cast<Long>(twips.FromDown(place.y())), static_cast<Long>(twips.FromAcross(place.x())));
}

} // namespace ostrel::desk

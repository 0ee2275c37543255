#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QStackedWidget>
#include <memory>

#include "desk/DeskPages.h"
#include "desk/DeskState.h"
#include "desk/HelpPagesPanel.h"
#include "desk/Menus.h"
#include "desk/NoticeBar.h"
#include "desk/OptionsPanel.h"
#include "desk/PageCommands.h"
#include "desk/PaneStatus.h"
#include "desk/ReportJob.h"
#include "desk/TableFile.h"
#include "desk/Work.h"

namespace ostrel::desk {

/// The application's window: the component in the middle, the options of a report or the list of help pages
/// beside it. Closing it while work is being done ends the work first; it must not be deleted before.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    /// A CSV file or a SQLite database, a directory of help pages, or one of its pages. What is wrong with it
    /// is shown in the window. Does nothing while other work runs.
    void Open(const QString& path);
    /// Makes the report of the open file. Does nothing if no file is open, or if help pages are shown in its
    /// place.
    void MakeReport();
    /// The directory of the next report.
    void SetOutputDirectory(const QString& directory) { options_->SetDirectory(directory); }

    desktop::OstrelWebHelpWidget& Widget() { return *widget_; }
    const Work& CurrentWork() const { return work_; }
    /// Returns the error message shown in the window, or an empty text.
    QString Trouble() const;

signals:
    void Closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Arrange();
    void ConnectActions();
    void RestoreState();
    void SaveState();
    void WorkChanged();
    void FillRecent();
    void AskForFile();
    void AskForDirectory();
    void PrintToPdf();
    void OpenTable(const QString& path, const QString& table);
    void OpenPages(const QString& directory, const QString& page);
    void ShowHelpPage(const QString& name);
    void TellOutcome(const ReportOutcome& outcome, double seconds);
    void TellDirectoryTrouble(const QString& sentence);
    /// Asks the user before existing files are replaced. Returns false if the report is not to be made.
    bool MayWrite(ReportJob& job, const QString& directory);
    void KeepPlan();
    ReportPlan PlanFor(const TableFile& file);
    /// Loads a page that the home button shall lead back to.
    void ShowHome(const Text& address);
    /// Whether the panel is about the open file, and not about help pages.
    bool TableOnView() const { return panels_->currentWidget() == options_; }
    /// Whether anything has been opened yet.
    bool PanelFilled() const { return file_ || !helpPages_->Directory().isEmpty(); }
    /// From here on the panel is about a table or about help pages, and the home button leads to its first
    /// page.
    void ShowPanel(QWidget& content);
    /// Back to what was opened before, of which the panel was hidden by the other one.
    void ReturnTo(QWidget& content);
    void ShowFolder();
    void ShowAbout();
    /// A table that a page links to is opened by the program that the desktop has for it; false for pages.
    bool LeaveToOthers(const Text& address);

    // The destructor deletes the widget first: its control still notifies the other members.
    std::unique_ptr<desktop::OstrelWebHelpWidget> widget_;
    Work work_;
    Actions actions_;
    PaneStatus status_;
    DeskState state_;
    DeskPages pages_;
    NoticeBar* notice_;
    PageCommands commands_;
    QDockWidget* dock_;
    QStackedWidget* panels_;
    OptionsPanel* options_;
    HelpPagesPanel* helpPages_;
    TableFile file_;
    QString report_; ///< system's path of the main page of the last report
    Text tableHome_; ///< the page that the home button leads to while a table is open
    bool closeWanted_ = false;
};

} // namespace ostrel::desk

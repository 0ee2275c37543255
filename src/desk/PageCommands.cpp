#include "desk/PageCommands.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>

#include "desktop/OstrelWebHelpWidget.h"
#include "desktop/QtPane.h"
#include "desktop/QtText.h"

namespace ostrel::desk {

namespace {

/// Differs where a page of the directory was added, removed or written.
QByteArray StateOf(const QString& directory) {
    QCryptographicHash state(QCryptographicHash::Sha256);
    state.addData(directory.toUtf8());
    for (const QFileInfo& file : QDir(directory).entryInfoList({"*.htm*"}, QDir::Files, QDir::Name)) {
        // Pages of results come and go.
        if (file.fileName().startsWith("$$")) continue;
        state.addData(file.fileName().toUtf8());
        state.addData(QByteArray::number(file.size()));
        state.addData(QByteArray::number(file.lastModified().toMSecsSinceEpoch()));
    }
    return state.result();
}

} // namespace

void PageCommands::Search(const QString& directory) {
    if (work_.Running()) return;
    const Work::Turn turn(work_, "Searching…");
    OstrelWebHelp& web = widget_.Web();
    if (QByteArray state = StateOf(directory); state != loaded_) {
        web.SearchClear();
        loaded_ = std::move(state);
    }
    web.HelpTitle("Search Results");
    Text error;
    web.Search({}, error);
    if (!error.empty()) return notice_.TellTrouble(desktop::ToQt(error));
    web.HelpPageLoadNow();
}

void PageCommands::Print() {
    if (work_.Running()) return;
    const Work::Turn turn(work_, "Printing…");
    widget_.Web().PrintPage();
}

QString PageCommands::PrintToPdf(const QString& start) {
    if (work_.Running()) return {};
    const QString directory = QFileDialog::getExistingDirectory(&window_, "Print to PDF", start);
    if (directory.isEmpty()) return {};
    desktop::PanePrinter& printer = widget_.Pane().Printer();
    printer.SetPdfDirectory(directory);
    Print();
    printer.SetPdfDirectory({});
    return directory;
}

void PageCommands::Press(const char* button) {
    if (!work_.Running()) widget_.Web().ButtonClick(button);
}

} // namespace ostrel::desk

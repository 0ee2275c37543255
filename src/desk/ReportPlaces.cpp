#include "desk/ReportPlaces.h"

#include <QMessageBox>

#include "desk/Counted.h"
#include "tables/PageName.h"
#include "tables/ReportList.h"
#include "text/CodePage.h"

namespace ostrel::desk {

namespace {

constexpr qsizetype MostNamed = 10;
/// Whoever has so many reports of one name gets the question.
constexpr int MostDirectories = 1000;

bool HoldsOther(const QString& directory, const TableFile& file) {
    tables::ReportList list;
    const std::string stem = ToUtf8(tables::PageNameOf(file.Stem().toStdString()));
    return list.Read(directory.toStdString(), stem) == tables::ReportList::Found::List &&
           list.input != tables::ReportList::MarkOf(file.path.toStdString());
}

} // namespace

bool AskToReplace(QWidget& parent, const StandingFiles& standing, const QString& directory) {
    QString told;
    if (standing.otherInput) told = "The report in " + directory + " was made of another file.\n\n";
    if (!standing.files.isEmpty()) {
        told += "No report made what stands in " + directory + ":\n\n" +
                standing.files.mid(0, MostNamed).join('\n');
        if (standing.files.size() > MostNamed)
            told += "\nand " + Counted(standing.files.size() - MostNamed, "more file");
        told += "\n\n";
    }
    QMessageBox box(QMessageBox::Warning, "Replace files", told + "Is the new report to replace it?",
                    QMessageBox::Yes | QMessageBox::No, &parent);
    box.setObjectName("replaceQuestion");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString FreeDirectory(const QString& base, const TableFile& file, const QStringList& taken) {
    const QString first = base + "/" + file.Stem().replace('/', '_');
    QString directory = first;
    for (int i = 2; i <= MostDirectories && (taken.contains(directory) || HoldsOther(directory, file)); ++i)
        directory = first + " " + QString::number(i);
    return directory;
}

} // namespace ostrel::desk

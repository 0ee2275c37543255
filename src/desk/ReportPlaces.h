#pragma once

#include <QStringList>

#include "desk/TableFile.h"

class QWidget;

namespace ostrel::desk {

/// What exists already where a report is going to be written.
struct StandingFiles {
    QString trouble;         ///< the directory cannot be written
    QStringList files;       ///< names of files that no report made
    bool otherInput = false; ///< the report there was made of another file

    bool Any() const { return otherInput || !files.isEmpty(); }
};

/// Asks the user whether they may be replaced.
bool AskToReplace(QWidget& parent, const StandingFiles& standing, const QString& directory);

/// The directory for a first report of the file: below the base, where neither a report of another file
/// stands nor one of those that are taken.
QString FreeDirectory(const QString& base, const TableFile& file, const QStringList& taken);

} // namespace ostrel::desk

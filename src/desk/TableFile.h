#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <memory>

#include "desk/Work.h"
#include "tables/InputTable.h"

namespace ostrel::desk {

/// A table that was read from a file.
struct TableFile {
    QString path;
    QStringList tables; ///< of a database
    QString chosen;     ///< which of them it is
    std::shared_ptr<tables::InputTable> table;
    qint64 size = 0;
    QDateTime written;

    explicit operator bool() const { return table != nullptr; }
    /// What the file is called without its directory and extension; of a database with several tables, the
    /// table as well.
    QString Stem() const;
    /// Whether the file was written to since it was read.
    bool Stale() const;
};

/// A table, or the sentence of what is wrong with the file; neither where the user stopped it.
struct TableReading {
    TableFile file;
    QString trouble;
};

/// Reads a CSV file, or a table of a SQLite database: the first one if none is named.
TableReading ReadTableFile(const QString& path, const QString& wantedTable, Work& work);

/// The name of a column as the user knows it.
QString ShownName(const tables::InputTable& table, std::size_t column);

} // namespace ostrel::desk

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/ByteSource.h"
#include "cli/CellStore.h"
#include "cli/ColumnTypes.h"
#include "cli/CsvReader.h"

namespace ostrel::cli {

/// A table as it came in: names, cells, and what the columns hold.
struct InputTable {
    explicit InputTable(Markup markup) : cells(markup) {}

    std::string place;          ///< where the names stand, for messages
    std::vector<Text> names;    ///< plain
    std::vector<Text> nameHtml; ///< the same as a browser shows them
    std::vector<ColumnType> types;
    CellStore cells; ///< row by row
    Long rows = 0;

    Long Columns() const { return static_cast<Long>(names.size()); }
};

/// Reads CSV whole. Without a header row the columns are named by their numbers. Throws `InputError`.
void ReadCsvTable(ByteSource& source, const CsvFormat& format, bool header, InputTable& table);

/// Whether the file begins as a SQLite database does.
bool IsSqliteFile(const std::string& path);

/// The names of the tables and views of a SQLite database, in order. Throws `InputError` where there is none.
std::vector<std::string> SqliteTableNames(const std::string& path);

/// Reads the rows of a query over a SQLite database, which is opened for reading only. With no query it is
/// all of `tableName`, and with neither all of the one table that there is. Throws `InputError`, and
/// `Interruption` where `stopWanted` says so; that one is asked again and again, must not throw, and is
/// `Interrupted` where none is given.
void ReadSqliteTable(const std::string& path, const std::string& query, const std::string& tableName,
                     InputTable& table, std::function<bool()> stopWanted = {});

} // namespace ostrel::cli

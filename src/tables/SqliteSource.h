#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tables/InputError.h"
#include "tables/TableSource.h"

namespace ostrel::tables {

class SqliteQuery;

/// Whether the file begins as a SQLite database does.
bool IsSqliteFile(const std::string& path);

/// The names of the tables and views of a SQLite database, in order. Throws `InputError` if there are none.
std::vector<std::string> SqliteTableNames(const std::string& path);

/// The rows of a query over a SQLite database. With no query it is all of `tableName`, and with neither all
/// of the one table that there is.
class SqliteSource final : public TableSource {
public:
    /// Throws `InputError` where the database cannot be opened.
    SqliteSource(const std::string& path, std::string query, std::string tableName,
                 StopWanted stopWanted = {});
    ~SqliteSource() override;

    void Begin(InputTable& table) override;
    bool ReadRow() override;
    [[noreturn]] void Fail(const std::string& sentence) const override;

private:
    void AddCell(std::string_view value);
    [[noreturn]] void FailInRow(const std::string& sentence) const;

    std::string path_, query_, tableName_;
    std::unique_ptr<SqliteQuery> run_;
    InputTable* table_ = nullptr; ///< after `Begin`
    Long row_ = 0;                ///< the row read last, from 1
    std::string scratch_;
};

} // namespace ostrel::tables

#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

#include "tables/InputError.h"

namespace ostrel::tables {

/// One query over a SQLite database, which is opened for reading only. Its errors name the file.
class SqliteQuery {
public:
    explicit SqliteQuery(const std::string& path, StopWanted stopWanted = {});
    SqliteQuery(const SqliteQuery&) = delete;
    SqliteQuery& operator=(const SqliteQuery&) = delete;

    /// Prepares one statement that returns columns, replacing the previous one.
    void Prepare(const std::string& sql);
    /// Goes to the next row. Returns false after the last one.
    bool Step();
    /// The row, for the functions of the library that read its values.
    sqlite3_stmt* Row() const { return statement_.get(); }
    [[noreturn]] void Fail(const std::string& sentence) const;

private:
    struct CloseDatabase {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
    };
    struct EndStatement {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    bool Stopped() const { return stopWanted_ && stopWanted_(); }
    [[noreturn]] void FailWithMessage(const std::string& what) const;

    std::string path_;
    StopWanted stopWanted_;
    std::unique_ptr<sqlite3, CloseDatabase> database_;
    std::unique_ptr<sqlite3_stmt, EndStatement> statement_;
};

} // namespace ostrel::tables

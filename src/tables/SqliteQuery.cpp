#include "tables/SqliteQuery.h"

#include <cstring>
#include <utility>

namespace ostrel::tables {

SqliteQuery::SqliteQuery(const std::string& path, StopWanted stopWanted)
    : path_(path), stopWanted_(std::move(stopWanted)) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
    database_.reset(opened);
    if (result != SQLITE_OK) FailWithMessage("can't be opened");
    // A query may run for long before its first row; it can be stopped there too.
    sqlite3_progress_handler(
        opened, 10'000,
        [](void* query) noexcept { return static_cast<SqliteQuery*>(query)->Stopped() ? 1 : 0; }, this);
}

void SqliteQuery::Prepare(const std::string& sql) {
    sqlite3_stmt* prepared = nullptr;
    const char* rest = nullptr;
    if (sqlite3_prepare_v2(database_.get(), sql.c_str(), static_cast<int>(sql.size()) + 1, &prepared,
                           &rest) != SQLITE_OK)
        FailWithMessage("the query can't be run");
    statement_.reset(prepared);
    if (!prepared) Fail("the query is empty.");
    if (std::strspn(rest, " \t\r\n;") != std::strlen(rest)) Fail("the query is more than one statement.");
    if (sqlite3_column_count(prepared) == 0) Fail("the query gives no columns.");
}

bool SqliteQuery::Step() {
    if (Stopped()) throw Interruption{};
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) return true;
    if (result == SQLITE_DONE) return false;
    FailWithMessage("the query can't be run");
}

void SqliteQuery::Fail(const std::string& sentence) const { throw InputError(path_ + ": " + sentence); }

void SqliteQuery::FailWithMessage(const std::string& what) const {
    if (sqlite3_errcode(database_.get()) == SQLITE_INTERRUPT) throw Interruption{};
    Fail(what + ": " + sqlite3_errmsg(database_.get()) + ".");
}

} // namespace ostrel::tables

#include <sqlite3.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "cli/InputError.h"
#include "cli/InputTable.h"
#include "cli/Interrupt.h"

namespace ostrel::cli {

namespace {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct EndStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using Statement = std::unique_ptr<sqlite3_stmt, EndStatement>;

/// One run over a database; its errors name the file.
class SqliteQuery {
public:
    explicit SqliteQuery(const std::string& path, std::function<bool()> stopWanted = {})
        : path_(path), stopWanted_(stopWanted ? std::move(stopWanted) : Interrupted) {
        sqlite3* opened = nullptr;
        const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
        database_.reset(opened);
        if (result != SQLITE_OK) FailWithMessage("can't be opened");
        // A query may run for long before its first row; it can be stopped there too.
        sqlite3_progress_handler(
            opened, 10'000,
            [](void* query) noexcept { return static_cast<SqliteQuery*>(query)->stopWanted_() ? 1 : 0; },
            this);
    }
    SqliteQuery(const SqliteQuery&) = delete;
    SqliteQuery& operator=(const SqliteQuery&) = delete;

    void Prepare(const std::string& sql) {
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

    bool Step() {
        if (stopWanted_()) throw Interruption{};
        const int result = sqlite3_step(statement_.get());
        if (result == SQLITE_ROW) return true;
        if (result == SQLITE_DONE) return false;
        FailWithMessage("the query can't be run");
    }

    sqlite3_stmt* Row() const { return statement_.get(); }
    [[noreturn]] void Fail(const std::string& sentence) const { throw InputError(path_ + ": " + sentence); }

private:
    [[noreturn]] void FailWithMessage(const std::string& what) const {
        if (sqlite3_errcode(database_.get()) == SQLITE_INTERRUPT) throw Interruption{};
        Fail(what + ": " + sqlite3_errmsg(database_.get()) + ".");
    }

    std::string path_;
    std::function<bool()> stopWanted_;
    Database database_;
    Statement statement_;
};

std::string TextOfColumn(sqlite3_stmt* row, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return text ? text : "";
}

std::vector<std::string> TablesOf(SqliteQuery& query) {
    query.Prepare("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE "
                  "'sqlite\\_%' ESCAPE '\\' ORDER BY name");
    std::vector<std::string> tables;
    while (query.Step()) tables.push_back(TextOfColumn(query.Row(), 0));
    if (tables.empty()) query.Fail("there is no table in it.");
    return tables;
}

/// `SELECT *` of the table asked for, or of the only one.
std::string QueryOfTable(SqliteQuery& query, const std::string& tableName) {
    const std::vector<std::string> tables = TablesOf(query);
    std::string chosen = tableName, all;
    for (const std::string& name : tables) all += (all.empty() ? "" : ", ") + name;
    if (chosen.empty()) {
        if (tables.size() > 1) query.Fail("there are several tables; choose one with --table: " + all + ".");
        chosen = tables.front();
    }
    bool known = false;
    for (const std::string& name : tables)
        known = known || sqlite3_stricmp(name.c_str(), chosen.c_str()) == 0;
    if (!known) query.Fail("there is no table [" + chosen + "]; there is " + all + ".");
    std::string quoted;
    for (char c : chosen) quoted.append(c == '"' ? 2 : 1, c);
    return "SELECT * FROM \"" + quoted + "\"";
}

/// The bytes of a value; a blob shows as hexadecimal digits.
std::string_view ValueOf(sqlite3_stmt* row, int column, std::string& scratch) {
    if (sqlite3_column_type(row, column) != SQLITE_BLOB) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
        return {text ? text : "", static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
    }
    const auto* bytes = static_cast<const unsigned char*>(sqlite3_column_blob(row, column));
    const int size = sqlite3_column_bytes(row, column);
    scratch.clear();
    for (int i = 0; i < size; ++i) {
        constexpr char digits[] = "0123456789ABCDEF";
        scratch += digits[bytes[i] >> 4];
        scratch += digits[bytes[i] & 15];
    }
    return scratch;
}

void AddCell(InputTable& table, const SqliteQuery& query, std::string_view value) {
    unsigned traits = TraitNone;
    for (char c : value) traits |= TraitsOfByte[static_cast<unsigned char>(c)];
    const std::string where = "row " + std::to_string(table.rows) + ": ";
    if (value.size() > CsvReader::MaxValueBytes) query.Fail(where + "a value is larger than 64 MiB.");
    if (value.find('\0') != std::string_view::npos)
        query.Fail(where + "there is a NUL byte in a value, so this is not text.");
    if (!value.empty()) table.cells.Append(value.data(), value.size());
    if (table.cells.EndCell(traits, TextEncoding::Utf8)) return;
    // Programs also store text that is not the UTF-8 that it should be.
    table.cells.Append(value.data(), value.size());
    table.cells.EndCell(traits, TextEncoding::Windows1252);
}

} // namespace

bool IsSqliteFile(const std::string& path) {
    // A pipe gives its bytes once, so only a plain file is looked into.
    std::error_code error;
    if (path == "-" || !std::filesystem::is_regular_file(path, error)) return false;
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (!file) return false;
    char head[16] = {};
    const std::size_t count = std::fread(head, 1, sizeof head, file);
    std::fclose(file);
    return count == sizeof head && std::memcmp(head, "SQLite format 3", sizeof head) == 0;
}

std::vector<std::string> SqliteTableNames(const std::string& path) {
    SqliteQuery run(path);
    return TablesOf(run);
}

void ReadSqliteTable(const std::string& path, const std::string& query, const std::string& tableName,
                     InputTable& table, std::function<bool()> stopWanted) {
    SqliteQuery run(path, std::move(stopWanted));
    table.place = path;
    run.Prepare(query.empty() ? QueryOfTable(run, tableName) : query);
    const int columns = sqlite3_column_count(run.Row());
    if (static_cast<std::size_t>(columns) > CsvReader::MaxColumns)
        run.Fail("the query gives more than " + std::to_string(CsvReader::MaxColumns) + " columns.");
    for (int i = 0; i < columns; ++i) {
        const char* name = sqlite3_column_name(run.Row(), i);
        table.names.push_back(PlainArgument(name ? name : ""));
        table.nameHtml.push_back(HtmlArgument(name ? name : ""));
    }
    ColumnTypeFinder finder;
    finder.Start(static_cast<std::size_t>(columns));
    std::string scratch;
    while (run.Step()) {
        if (table.rows == std::numeric_limits<Long>::max())
            run.Fail("there are more rows than a report can have.");
        ++table.rows;
        for (int i = 0; i < columns; ++i) {
            AddCell(table, run, ValueOf(run.Row(), i, scratch));
            finder.Look(static_cast<std::size_t>(i), table.cells.Cells()[table.cells.Count() - 1].Plain());
        }
    }
    if (table.rows == 0) run.Fail(query.empty() ? "the table has no rows." : "the query gives no rows.");
    table.types = finder.Types();
}

} // namespace ostrel::cli

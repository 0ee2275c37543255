#include "tables/SqliteSource.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

#include "tables/CsvReader.h"
#include "tables/SqliteQuery.h"

namespace ostrel::tables {

namespace {

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

} // namespace

bool IsSqliteFile(const std::string& path) {
    // A pipe can be read only once, so only regular files are examined.
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

SqliteSource::SqliteSource(const std::string& path, std::string query, std::string tableName,
                           StopWanted stopWanted)
    : path_(path), query_(std::move(query)), tableName_(std::move(tableName)),
      run_(std::make_unique<SqliteQuery>(path, std::move(stopWanted))) {}

SqliteSource::~SqliteSource() = default;

void SqliteSource::Begin(InputTable& table) {
    table_ = &table;
    table.place = path_;
    run_->Prepare(query_.empty() ? QueryOfTable(*run_, tableName_) : query_);
    const int columns = sqlite3_column_count(run_->Row());
    if (static_cast<std::size_t>(columns) > CsvReader::MaxColumns)
        Fail("the query gives more than " + std::to_string(CsvReader::MaxColumns) + " columns.");
    for (int i = 0; i < columns; ++i) {
        const char* name = sqlite3_column_name(run_->Row(), i);
        table.names.push_back(PlainArgument(name ? name : ""));
        table.nameHtml.push_back(HtmlArgument(name ? name : ""));
    }
}

bool SqliteSource::ReadRow() {
    if (!run_->Step()) {
        if (row_ == 0) Fail(query_.empty() ? "the table has no rows." : "the query gives no rows.");
        return false;
    }
    ++row_;
    for (int i = 0; i < table_->Columns(); ++i) AddCell(ValueOf(run_->Row(), i, scratch_));
    return true;
}

void SqliteSource::AddCell(std::string_view value) {
    unsigned traits = TraitNone;
    for (char c : value) traits |= TraitsOfByte[static_cast<unsigned char>(c)];
    if (value.size() > CsvReader::MaxValueBytes) FailInRow("a value is larger than 64 MiB.");
    if (value.find('\0') != std::string_view::npos)
        FailInRow("there is a NUL byte in a value, so this is not text.");
    CellStore& cells = table_->cells;
    if (!value.empty()) cells.Append(value.data(), value.size());
    if (cells.EndCell(traits, TextEncoding::Utf8)) return;
    // Programs also store text that is not the UTF-8 that it should be.
    cells.Append(value.data(), value.size());
    cells.EndCell(traits, TextEncoding::Windows1252);
}

void SqliteSource::Fail(const std::string& sentence) const { run_->Fail(sentence); }

void SqliteSource::FailInRow(const std::string& sentence) const {
    Fail("row " + std::to_string(row_) + ": " + sentence);
}

} // namespace ostrel::tables

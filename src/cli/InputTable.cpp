#include "cli/InputTable.h"

#include <limits>

#include "cli/InputError.h"

namespace ostrel::cli {

namespace {

/// The cells read so far become the names of the columns.
void TakeHeader(InputTable& table) {
    for (std::size_t i = 0; i < table.cells.Count(); ++i) {
        const PackedCell& cell = table.cells.Cells()[i];
        table.names.emplace_back(cell.Plain());
        table.nameHtml.emplace_back(cell.Html());
    }
    table.cells.Truncate(0);
}

void NumberColumns(InputTable& table, std::size_t count) {
    for (std::size_t i = 1; i <= count; ++i) table.names.push_back("Column " + std::to_string(i));
    table.nameHtml = table.names;
}

std::string Count(std::size_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

} // namespace

void ReadCsvTable(ByteSource& source, const CsvFormat& format, bool header, InputTable& table) {
    CsvReader reader(source, format, table.cells);
    std::size_t count = 0;
    if (!reader.ReadRecord(count)) throw InputError(source.Name() + " holds no text.");
    const std::size_t columns = count;
    table.place = source.Name() + ", line " + std::to_string(reader.RecordLine());
    if (header) {
        TakeHeader(table);
        if (!reader.ReadRecord(count))
            reader.FailAtLine(reader.RecordLine(), "there is a header and no row below it.");
    } else {
        NumberColumns(table, columns);
    }

    ColumnTypeFinder finder;
    finder.Start(columns);
    do {
        if (count != columns)
            reader.FailAtLine(reader.RecordLine(), "the row has " + Count(count, "value") + " where the " +
                                                       (header ? "header" : "first row") + " has " +
                                                       Count(columns, "column") + ".");
        if (table.rows == std::numeric_limits<Long>::max())
            reader.FailAtLine(reader.RecordLine(), "there are more rows than a report can have.");
        ++table.rows;
        const PackedCell* row = table.cells.Cells() + (table.cells.Count() - columns);
        for (std::size_t i = 0; i < columns; ++i) finder.Look(i, row[i].Plain());
    } while (reader.ReadRecord(count));
    table.types = finder.Types();
}

} // namespace ostrel::cli

#include "tables/CsvSource.h"

#include <utility>

#include "tables/CountText.h"
#include "tables/InputError.h"

namespace ostrel::tables {

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

} // namespace

void CsvSource::Begin(InputTable& table) {
    reader_.emplace(bytes_, format_, table.cells);
    if (!reader_->ReadRecord(columns_)) throw InputError(bytes_.Name() + " holds no text.");
    table.place = bytes_.Name() + ", line " + std::to_string(reader_->RecordLine());
    if (header_)
        TakeHeader(table);
    else
        NumberColumns(table, columns_);
    rowRead_ = !header_;
}

bool CsvSource::ReadRow() {
    const bool first = std::exchange(first_, false);
    if (std::exchange(rowRead_, false)) return true;
    std::size_t count = 0;
    if (!reader_->ReadRecord(count)) {
        if (first) Fail("there is a header and no row below it.");
        return false;
    }
    if (count != columns_)
        Fail("the row has " + Counted(count, "value") + " where the " + (header_ ? "header" : "first row") +
             " has " + Counted(columns_, "column") + ".");
    return true;
}

void CsvSource::Fail(const std::string& sentence) const {
    reader_->FailAtLine(reader_->RecordLine(), sentence);
}

} // namespace ostrel::tables

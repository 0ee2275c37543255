#include "tablepages/GridRowWriter.h"

namespace ostrel::tablepages {

namespace {

/// Tags that differ from row to row need not be kept for the whole table.
constexpr std::size_t MostTagsKept = 4096;

} // namespace

void GridRowWriter::Write(html::TableWriter& table, const GridRow& row) {
    if (tags_.Size() > MostTagsKept) tags_.Clear();
    cells_.clear();
    for (Long column = 1; column <= row.Width(); ++column) {
        const GridCell& cell = *row.Find(column);
        cells_.push_back({{}, cell.text, {}, tags_.Intern(cell.tag)});
    }
    table.Row(cells_);
}

} // namespace ostrel::tablepages

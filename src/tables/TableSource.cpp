#include "tables/TableSource.h"

#include <limits>

namespace ostrel::tables {

void ReadTable(TableSource& source, InputTable& table) {
    source.Begin(table);
    const std::size_t columns = table.names.size();
    ColumnTypeFinder finder;
    finder.Start(columns);
    while (source.ReadRow()) {
        if (table.rows == std::numeric_limits<Long>::max())
            source.Fail("there are more rows than a report can have.");
        ++table.rows;
        const PackedCell* row = table.cells.Cells() + (table.cells.Count() - columns);
        for (std::size_t i = 0; i < columns; ++i) finder.Look(i, row[i].Plain());
    }
    table.types = finder.Types();
}

} // namespace ostrel::tables

#pragma once

#include "html/TableWriter.h"
#include "tablepages/GridRow.h"

namespace ostrel::tablepages {

/// Writes rows of texts into a table, and keeps each distinct tag text of theirs once.
class GridRowWriter {
public:
    void Write(html::TableWriter& table, const GridRow& row);
    void Write(html::TableWriter& table, const GridRows& rows) {
        for (const GridRow& row : rows) Write(table, row);
    }

private:
    html::TagTable tags_;
    std::vector<html::CellView> cells_;
};

} // namespace ostrel::tablepages

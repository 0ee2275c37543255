#pragma once

#include <vector>

#include "platform/Context.h"
#include "text/Array.h"

namespace ostrel::html {

Text CreateTableCell(TextView tags, TextView font, TextView cell);
void CreateTableAddBlanks(Text& row, Long& blanks);
Text CreateZeroBlank(TextView value, TextView decimalDelimiter);
/// Whether `CreateZeroBlank` would empty the value.
bool IsZeroBlank(TextView value, TextView decimalDelimiter);
Text FormatCell(TextView text, Long width, TextView trail, TextView lead);

/// What all cells of a table have in common.
struct TableLook {
    bool spaceColumns = false;
    Text font;      ///< with the fallback of `HelpFont` already made
    Text tableTags; ///< empty for the default
    Text rowTags;
    Text spaceCellHTML; ///< empty for two spaces
    Text emptyCellHTML; ///< empty for one space
};

/// The whole table from grids; yields after every 50th row.
Text CreateTable(Context& context, Long rows, Long columns, const Grid<Text>& cells, const Grid<Text>& tags,
                 const TableLook& look);

} // namespace ostrel::html

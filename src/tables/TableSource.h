#pragma once

#include <string>

#include "tables/InputTable.h"

namespace ostrel::tables {

/// Where the rows of a table come from, front to back. Another kind of input is another class of these.
/// All functions may throw `InputError`, and `Interruption` if the host stops the reading.
class TableSource {
public:
    virtual ~TableSource() = default;
    /// Sets the names of the columns and their place. Called once, first; the rows go to this table.
    virtual void Begin(InputTable& table) = 0;
    /// Appends the cells of one row, one per column. Returns false after the last row; a source without any
    /// row fails instead.
    virtual bool ReadRow() = 0;
    /// Throws an `InputError` with the sentence and, as far as the source knows it, the place.
    [[noreturn]] virtual void Fail(const std::string& sentence) const = 0;
};

/// Reads a table whole and finds out what its columns hold.
void ReadTable(TableSource& source, InputTable& table);

} // namespace ostrel::tables

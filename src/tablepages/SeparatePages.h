#pragma once

#include "tablepages/TableRun.h"

namespace ostrel::tablepages {

/// Writes the record pages of a report: for each record a small table of field and value, with variants
/// sorted by name and by value. A False, with a sentence in `error`, ends the run.
bool MakeSeparatePages(TableRun& run, Text& error);

} // namespace ostrel::tablepages

#pragma once

#include "tablepages/ReportRun.h"

namespace ostrel::tablepages {

/// Writes the record pages of a report: for each record a small table of field and value, with variants
/// sorted by name and by value. A False, with a sentence in `error`, ends the run.
bool MakeSeparatePages(ReportRun& run, Text& error);

} // namespace ostrel::tablepages

#pragma once

#include <functional>

#include "platform/Context.h"
#include "text/Array.h"

namespace ostrel::services {

Text WriteFileCSVValue(TextView value, TextView delimiter);
/// Appends the value as `WriteFileCSVValue` gives it.
void AppendCsvValue(Text& output, TextView value, TextView delimiter);

/// The value of one field of one record, both counted from 1.
using CsvCell = std::function<TextView(Long record, Long field)>;

/// Writes a CSV file record by record through the safe write. `cell` gives each value; its view need only
/// live until the next call. Yields every 50 records; a stop ends it with "Write Interrupted.".
bool WriteCsvFile(Context& context, const Text& title, const Text& path, const Array<Text>& names,
                  const CsvCell& cell, Long records, Long fields, Text& error, const Text& delimiter,
                  bool createBackup);

} // namespace ostrel::services

#pragma once

#include <functional>

#include "platform/Context.h"
#include "text/Array.h"
#include "text/LargeBuffer.h"

namespace ostrel::services {

/// The value, in double quotes where it holds a quote, CR, LF or the delimiter.
Text WriteFileCSVValue(TextView value, TextView delimiter);

/// The value of one field of one record, both counted from 1.
using CsvCell = std::function<TextView(Long record, Long field)>;

/// Writes a CSV file record by record through the safe write. `cell` gives each value; its view need only
/// live until the next call. Yields every 50 records; a stop ends it with "Write Interrupted.". The text is
/// put together in `room`, whose memory the caller may use again.
bool WriteCsvFile(Context& context, const Text& title, const Text& path, const Array<Text>& names,
                  const CsvCell& cell, Long records, Long fields, Text& error, const Text& delimiter,
                  bool createBackup, LargeBuffer& room);

} // namespace ostrel::services

#pragma once

#include <functional>

#include "platform/Context.h"
#include "text/Array.h"
#include "text/LargeBuffer.h"

namespace ostrel::services {

/// The value, in double quotes where it holds a quote, CR, LF or the delimiter.
Text WriteFileCSVValue(TextView value, TextView delimiter);

/// The value of one field of one record, both counted from 1. The view need only live until the next call.
using CsvCell = std::function<TextView(Long record, Long field)>;

/// What a CSV file is made of.
struct CsvContent {
    const Array<Text>& names; ///< of the fields
    Long records = 0;
    Long fields = 0;
    CsvCell cell;
    TextView delimiter = ",";
};

/// Writes a CSV file record by record through the safe write. Yields every 50 records; a stop ends it with
/// "Write Interrupted.". The text is put together in `room`, whose memory the caller may use again. A file
/// that is there is kept as a backup, or, with `createBackup` False, left alone where it is the same.
bool WriteCsvFile(Context& context, const Text& path, const CsvContent& content, bool createBackup,
                  LargeBuffer& room, Text& error);

} // namespace ostrel::services

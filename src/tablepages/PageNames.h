#pragma once

#include "tablepages/TableScope.h"

namespace ostrel::tablepages {

// How the files of a report are named after its main page. Each takes and gives a path or a name alone; those
// of the records are in `RecordNames`.

/// The CSV file beside the main page.
Text CsvPath(TextView mainPath);

/// The page of all records from the last one up.
Text DownPagePath(TextView mainPath);
/// Whether there is such a page.
bool HasDownPage(const TableOptions& options);

/// "report_3_U.htm" of "report.htm". `name` is the column's; `suffix` is "_U" or "_D".
Text SortPageName(const TableOptions& options, TextView mainName, Long column, TextView name,
                  TextView suffix);

/// The names of all files that `PageCreateTable` writes of the table, in that order; none without a path.
Array<Text> FileNames(const TableScope& scope, const TableInput& input);

} // namespace ostrel::tablepages

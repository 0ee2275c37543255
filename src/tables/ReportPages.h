#pragma once

#include <vector>

#include "control/OstrelWebHelp.h"
#include "tables/InputTable.h"

namespace ostrel::tables {

// A report of a table as calls of the control. `web` holds all options of the report.

/// How many columns the pages show.
Long ShownColumns(const InputTable& table, const OstrelWebHelp& web);

/// The default sub-title of a report: the number of rows and columns shown, and a link to its CSV
/// file. `csv` is the name of that file, empty for no link.
Text DefaultSubTitle(const InputTable& table, const Text& csv, OstrelWebHelp& web);

/// The names of all files that the report with that main page consists of.
Array<Text> ReportFileNames(const InputTable& table, const Text& mainPage, OstrelWebHelp& web);

/// Makes the pages and the CSV file. `types` are the types of the columns. False, with the message of
/// the control, where not everything was made.
bool MakeReport(const InputTable& table, const std::vector<ColumnType>& types, const Text& mainPage,
                const Text& title, OstrelWebHelp& web, Text& message);

} // namespace ostrel::tables

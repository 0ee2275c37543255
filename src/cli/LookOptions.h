#pragma once

#include "cli/ReportOptions.h"
#include "control/OstrelWebHelp.h"
#include "tables/ReportLook.h"

namespace ostrel::cli {

/// Applies the options for the look of the pages. Throws `UsageError`.
tables::Look LookOf(const ReportOptions& options);

/// Adds the links above the table. Throws `UsageError`.
void AddHeaderLinks(const ReportOptions& options, OstrelWebHelp& web);

} // namespace ostrel::cli

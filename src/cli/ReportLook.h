#pragma once

#include "cli/ReportOptions.h"
#include "control/OstrelWebHelp.h"

namespace ostrel::cli {

/// Sets fonts, colours, patterns and links of the pages: the default look, unless it is to be plain, and what
/// the options change of it. Throws `UsageError`.
void ApplyLook(const ReportOptions& options, OstrelWebHelp& web);

} // namespace ostrel::cli

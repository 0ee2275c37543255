#pragma once

#include <string_view>

namespace ostrel {
class OstrelWebHelp;
}

namespace ostrel::cli {

/// Lets a property by its name and a text: `PageTableBorder=1`, `PageTableColumnHide(3)=True`. The name's
/// case does not matter. Throws `UsageError`.
void SetProperty(OstrelWebHelp& web, std::string_view assignment);

} // namespace ostrel::cli

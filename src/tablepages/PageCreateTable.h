#pragma once

#include "tablepages/TableScope.h"

namespace ostrel::tablepages {

/// Makes the pages of a table. False with a sentence in `error`, which is left as it was otherwise.
bool PageCreateTable(const TableScope& scope, const TableInput& input, Text& error);

} // namespace ostrel::tablepages

#pragma once

#include "tablepages/TableRun.h"

namespace ostrel::tablepages {

/// Makes the two sorted pages of each column that has them. It takes its rows from the main page.
bool MakeSortPages(TableRun& run, Text& error);

} // namespace ostrel::tablepages

#pragma once

#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

/// The number format of a column's total; "auto" goes by the places of the column's cells.
Text TotalFormat(const ReportFrame& frame, Long column);

} // namespace ostrel::tablepages

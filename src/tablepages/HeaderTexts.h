#pragma once

#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

// Texts of the header cells and the names of the sort pages that they link to.

/// "report_3_U.htm" of "report.htm": the link target of a sort page, with "#anchor" behind it where there is
/// one. `suffix` is "_U" or "_D".
Text SortFileName(const ReportFrame& frame, TextView filePath, Long column, TextView suffix, TextView anchor);

/// The header text of the record numbers; empty without a name for them. `mark` is HTML behind the name.
Text RecordHeader(const ReportFrame& frame, TextView filePath, TextView toolTip, TextView anchor,
                  TextView mark = {});

/// The header text of a column. `up` links to the page sorted up, else down. `mark` is HTML behind the name.
Text HeaderText(const ReportFrame& frame, Long column, TextView filePath, bool up, TextView anchor,
                TextView mark = {});

/// A column's name as plain text on one line.
Text PlainName(const ReportFrame& frame, Long column);

} // namespace ostrel::tablepages

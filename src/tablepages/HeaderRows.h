#pragma once

#include "tablepages/GridRow.h"
#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

/// The two texts of each header cell, by grid column: linking to the page sorted up and to that sorted down.
struct HeaderVariants {
    std::vector<Text> up, down;
    /// The text of one grid column, or null where there is none.
    static const Text* Find(const std::vector<Text>& texts, Long gridColumn);
};

struct HeaderLinksTo {
    TextView recordPath;   ///< the page that the record number header leads to
    TextView anchor;       ///< the anchor on each page that a header leads to
    TextView recordMark{}; ///< HTML behind the name of the record numbers
};

/// Adds the header with its spacers and gives the index of the header row among `rows`. `variants` is null
/// on a sorted page, which has its header from the main page.
std::size_t AddHeaderRows(GridRows& rows, const ReportFrame& frame, const HeaderLinksTo& to,
                          HeaderVariants* variants);

} // namespace ostrel::tablepages

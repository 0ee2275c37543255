#pragma once

#include <functional>
#include <vector>

#include "control/OstrelWebHelp.h"
#include "tables/InputTable.h"

namespace ostrel::tables {

/// Gives each page of a report a head of its own during its lifetime: the titles of sorted pages name the
/// order in which they are sorted, and pages of single records have a style sheet of theirs.
class PageHeads {
public:
    /// `recordStyle` is the meta text of record pages.
    PageHeads(const InputTable& table, OstrelWebHelp& web, Text recordStyle);
    ~PageHeads();
    PageHeads(const PageHeads&) = delete;
    PageHeads& operator=(const PageHeads&) = delete;

private:
    void TellOrder(TextView type, Text& title, TextView sortBy, bool up);
    /// The column of a sorted page; 0 where no column has that name. Columns come in order, the page sorted
    /// up first.
    Long NextColumn(TextView sortBy, bool up);

    const InputTable& table_;
    OstrelWebHelp& web_;
    Text recordStyle_;
    Long column_ = 0; ///< of the sorted page that came last
    std::function<void()> endListening_;
};

/// In which order a page sorted on a column is, such as "highest first". `order` is the column's sort type.
Text OrderInWords(TextView order, bool up);

} // namespace ostrel::tables

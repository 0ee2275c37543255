#pragma once

#include <functional>
#include <memory>

#include "html/PageScope.h"
#include "html/TableWriter.h"
#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// Builds the second part of table pages, one after the other, in a buffer that is taken up again as soon as
/// nobody holds the former page.
class PageTable {
public:
    using Fill = std::function<void(html::TableWriter&)>;

    /// Sets the second part: the rows that `fill` writes, in the table's font. Without columns, or with
    /// `empty`, there is no table.
    void Build(const html::PageScope& scope, const TableOptions& options, Long columns, bool empty,
               const Fill& fill);

    /// The buffer itself, emptied, for other text of the run that comes before a page.
    LargeBuffer& Room();

private:
    std::shared_ptr<LargeBuffer> buffer_;
};

} // namespace ostrel::tablepages

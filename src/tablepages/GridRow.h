#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel::tablepages {

struct GridCell {
    Text text, tag;
    Text saved; ///< the tag without the colours of the page that the row was made for
};

/// A row of a table that is no record: header, links, spacer or total. What lies outside its cells is empty,
/// and a write there does nothing.
class GridRow {
public:
    explicit GridRow(Long width) : cells_(width > 0 ? static_cast<std::size_t>(width) : 0) {}

    Long Width() const { return static_cast<Long>(cells_.size()); }
    GridCell* Find(Long column) {
        return column >= 1 && column <= Width() ? &cells_[static_cast<std::size_t>(column - 1)] : nullptr;
    }
    const GridCell* Find(Long column) const { return const_cast<GridRow*>(this)->Find(column); }

private:
    std::vector<GridCell> cells_;
};

using GridRows = std::vector<GridRow>;

} // namespace ostrel::tablepages

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "text/Text.h"

namespace ostrel::html {

/// Everything that a table needs to know of the attributes of a cell, worked out once for each distinct text.
struct TagInfo {
    Text text;       ///< the attributes as they were given
    Text cellStart;  ///< `<TD ...>`
    Text spacer;     ///< `<TD ...>` of the spacer in front, with its BGCOLOR and HEIGHT; empty for neither
    Long span = 1;   ///< columns of the grid that the cell takes
    Long spaced = 1; ///< the same in a table with spacer columns
};

/// Digests the attributes of one cell.
TagInfo DigestTags(TextView tags);

/// Keeps each distinct text of attributes once. Records stay where they are until `Clear`, so cells refer to
/// them by address; no attributes at all are the null record.
class TagTable {
public:
    TagTable();
    const TagInfo* Intern(TextView tags);
    std::size_t Size() const { return records_.size(); }
    void Clear();

private:
    void Rehash();

    struct Slot {
        std::size_t hash = 0;
        const TagInfo* record = nullptr;
    };
    std::deque<TagInfo> records_;
    std::vector<Slot> slots_; // open addressing, the size a power of two
    const TagInfo* last_ = nullptr;
};

} // namespace ostrel::html

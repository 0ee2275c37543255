#pragma once

#include "tablepages/SpaceRows.h"
#include "tablepages/TableRun.h"

namespace ostrel::tablepages {

/// The table of a record page: two columns, field and value. What the pages of a run have in common is worked
/// out once, as there may be hundreds of thousands of them.
class RecordPage {
public:
    RecordPage(TableRun& run, const Array<Text>& names);

    /// Whether the page has a field of that column.
    bool Holds(Long column) const {
        return !options_.PageTableSeparateShownOnly || run_.frame.columns.Shows(column);
    }

    /// Sets the second part of the page: the fields in the order of the pointers. The headers of the two
    /// columns are links where there is an address.
    void Build(TextView nameAddress, TextView valueAddress, const Array<Text>& values,
               const Array<Long>& pointers);

private:
    using Tags = std::array<const html::TagInfo*, 2>; // [odd record]

    /// Rows that are no fields, ready to be written.
    class Block {
    public:
        void Set(GridRows rows, html::TagTable& tags);
        void Write(html::TableWriter& table) const;

    private:
        GridRows rows_;
        std::vector<std::vector<html::CellView>> cells_;
    };

    void SetSpaces(Block& block, Long spaceType, const SpaceColours& colours);
    void SetLinks(Block& block, Long position);
    void SetHeader(TextView nameAddress, TextView valueAddress);
    Tags FieldTags(bool filled, Long column);
    void WriteFields(html::TableWriter& table, const Array<Text>& values, const Array<Long>& pointers) const;

    TableRun& run_;
    const TableOptions& options_;
    html::TagTable tags_;
    Long linkColumns_ = 0; // the first page of a run does not know its columns yet
    Block linksAbove_, aboveHeader_, header_, belowHeader_, linksBelow_;
    Block headerSpace_, aboveFields_, between_, belowFields_;
    Array<Text> nameCells_;
    Text before_, after_;
    Tags nameTags_, valueTags_, emptyTags_;
};

} // namespace ostrel::tablepages

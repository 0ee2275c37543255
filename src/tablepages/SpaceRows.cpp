#include "tablepages/SpaceRows.h"

#include <algorithm>

#include "html/Elements.h"
#include "tablepages/TableTypes.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

Long SpanOf(const TableOptions& options, Long columns) {
    return options.PageTableSpace ? 2 * columns - 1 : columns;
}

void AddSpaceRows(GridRows& rows, const TableOptions& options, Long columns, Long spaceType,
                  const SpaceColours& colours) {
    const auto add = [&](TextView height, TextView colour, TextView text = {}) {
        GridCell cell;
        html::AddHTMLTag(cell.tag, "COLSPAN", FromLong(SpanOf(options, columns)));
        if (!height.empty()) html::AddHTMLTag(cell.tag, "HEIGHT", height);
        if (!colour.empty()) html::AddHTMLTag(cell.tag, "BGCOLOR", colour);
        cell.text = text;
        // The record pages have a cell for it even where the main table shows no column.
        GridRow& row = rows.emplace_back(std::max(columns, 1));
        if (GridCell* first = row.Find(1)) *first = std::move(cell);
    };
    const auto line = [&](TextView height) { add(height, "BLACK"); };
    const auto middle = [&] { add("1", colours.middle); };

    switch (spaceType) {
    case owhSpaceSpace:
        add({}, {}, "&nbsp;");
        return;
    case owhSpaceHalf:
        add("6", {});
        return;
    case owhSpaceLine:
    case owhSpaceLineDouble:
    case owhSpaceLineThick:
    case owhSpaceLineThinThick:
    case owhSpaceLineThickThin:
        break;
    default:
        return;
    }
    add("2", colours.top);
    switch (spaceType) {
    case owhSpaceLine:
        line("1");
        break;
    case owhSpaceLineDouble:
        line("1");
        middle();
        line("1");
        break;
    case owhSpaceLineThick:
        line("2");
        break;
    case owhSpaceLineThinThick:
        line("1");
        middle();
        line("2");
        break;
    default:
        line("2");
        middle();
        line("1");
        break;
    }
    add("2", colours.bottom);
}

} // namespace ostrel::tablepages

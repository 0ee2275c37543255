#include "tablepages/HeaderRows.h"

#include "html/Elements.h"
#include "tablepages/HeaderTexts.h"
#include "tablepages/SpaceRows.h"

namespace ostrel::tablepages {

const Text* HeaderVariants::Find(const std::vector<Text>& texts, Long gridColumn) {
    const auto place = static_cast<std::size_t>(gridColumn - 1);
    return gridColumn >= 1 && place < texts.size() ? &texts[place] : nullptr;
}

std::size_t AddHeaderRows(GridRows& rows, const ReportFrame& frame, const HeaderLinksTo& to,
                          HeaderVariants* variants) {
    const TableOptions& options = frame.options;
    const ColumnPlan& columns = frame.columns;
    const TextView colour = options.PageTableHeaderBGColor;
    AddSpaceRows(rows, options, columns.Width(), options.PageTableHeaderAbove, {{}, colour, colour});

    const CellRules::Placement left{false, frame.align.headerAlign, frame.align.headerVAlign, false};
    const CellRules::Placement right{true, frame.align.headerAlign, frame.align.headerVAlign, false};
    if (variants) {
        variants->up.assign(columns.shown.size(), {});
        variants->down.assign(columns.shown.size(), {});
    }
    const std::size_t headerRow = rows.size();
    GridRow& row = rows.emplace_back(columns.Width());
    for (std::size_t place = 0; place < columns.shown.size(); ++place) {
        const Long column = columns.shown[place];
        GridCell& cell = *row.Find(static_cast<Long>(place) + 1);
        if (column == 0) {
            const Text text =
                options.PageTableRecordNumberSort
                    ? RecordHeader(frame, to.recordPath, options.PageTableOrderUpTT, to.anchor, to.recordMark)
                    : Text();
            frame.rules.SetCell(text, cell.text, cell.tag, right);
        } else {
            if (variants) {
                const Text down = HeaderText(frame, column, frame.filePath, false, to.anchor);
                frame.rules.SetCell(down, cell.text, cell.tag, left);
                variants->down[place] = cell.text;
            }
            const Text up = HeaderText(frame, column, frame.filePath, true, to.anchor);
            frame.rules.SetCell(up, cell.text, cell.tag, right);
            if (variants) variants->up[place] = cell.text;
        }
        if (variants) cell.saved = cell.tag;
        if (!colour.empty()) html::AddHTMLTag(cell.tag, "BGCOLOR", colour);
    }
    AddSpaceRows(rows, options, columns.Width(), options.PageTableHeaderBelow, {colour, {}, colour});
    return headerRow;
}

} // namespace ostrel::tablepages

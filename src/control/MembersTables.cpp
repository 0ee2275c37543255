#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "tablepages/PageCreateTable.h"
#include "tablepages/PageNames.h"

namespace ostrel {

namespace {

tablepages::TableScope ScopeOf(ControlParts& parts) {
    State& state = parts.state;
    return {parts.PageScope(), state.table, state.headerLinks, state.separate};
}

} // namespace

Flag OstrelWebHelp::PageCreateTable(const Text& FilePath, const Text& Title, Long NumberRows,
                                    Long NumberColumns, const Array<Text>& ColumnNames,
                                    const Array<Flag>& ColumnRight, const Grid<Text>& CellValues,
                                    const Grid<Text>& CellTags, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        return tablepages::PageCreateTable(ScopeOf(*parts_),
                                           {FilePath, Title, NumberRows, NumberColumns, ColumnNames,
                                            ColumnRight, CellTable(CellValues), CellTable(CellTags)},
                                           ErrorMessage);
    });
}

Flag OstrelWebHelp::PageCreateTableNoTags(const Text& FilePath, const Text& Title, Long NumberRows,
                                          Long NumberColumns, const Array<Text>& ColumnNames,
                                          const Array<Flag>& ColumnRight, const Grid<Text>& CellValues,
                                          Text& ErrorMessage) {
    return PageCreateTable(FilePath, Title, NumberRows, NumberColumns, ColumnNames, ColumnRight, CellValues,
                           {}, ErrorMessage);
}

Flag OstrelWebHelp::PageCreateTableFrom(const Text& FilePath, const Text& Title,
                                        const Array<Text>& ColumnNames, const Array<Flag>& ColumnRight,
                                        const CellTable& Cells, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        return tablepages::PageCreateTable(
            ScopeOf(*parts_),
            {FilePath, Title, Cells.Rows(), Cells.Columns(), ColumnNames, ColumnRight, Cells, {}},
            ErrorMessage);
    });
}

Array<Text> OstrelWebHelp::PageCreateTableFiles(const Text& FilePath, const Array<Text>& ColumnNames,
                                                const CellTable& Cells) {
    return parts_->guard([&] {
        return tablepages::FileNames(
            ScopeOf(*parts_), {FilePath, {}, Cells.Rows(), Cells.Columns(), ColumnNames, {}, Cells, {}});
    });
}

Long OstrelWebHelp::PageCreateTableMaxSubHeader() {
    return parts_->guard([&] { return parts_->state.headerLinks.MaxRow(); });
}

Flag OstrelWebHelp::PageTableHeaderLinksAdd(const Text& Name, const Text& Link, Text& Error,
                                            const Text& ToolTip, Flag Right, Long Options, Long Row) {
    return parts_->guard([&]() -> Flag {
        return parts_->state.headerLinks.Add({Name, Link, ToolTip, Right, Row, Options}, Error);
    });
}

void OstrelWebHelp::PageTableHeaderLinksClear() {
    parts_->guard([&] { parts_->state.headerLinks.Clear(); });
}

Flag OstrelWebHelp::PageTableHeaderLinksFormat(Long Row, Long Position, const Text& Size, Flag Bold,
                                               Flag Italic, const Text& NoLinkColour, Flag CentreAll) {
    return parts_->guard([&]() -> Flag {
        return parts_->state.headerLinks.AddFormat(
            {Row, Position, Size, Bold, Italic, NoLinkColour, CentreAll});
    });
}

void OstrelWebHelp::PageTableHeaderLinksShow(Flag Above, Flag Below, Flag AboveRepeat, Flag BelowRepeat) {
    parts_->guard([&] { parts_->state.headerLinks.show = {Above, Below, AboveRepeat, BelowRepeat}; });
}

void OstrelWebHelp::PageTableHeaderNavNames(const Text& FirstName, const Text& PreviousName,
                                            const Text& NextName, const Text& LastName, const Text& AllName) {
    parts_->guard([&] {
        HeaderLinks& links = parts_->state.headerLinks;
        links.firstName = FirstName;
        links.previousName = PreviousName;
        links.nextName = NextName;
        links.lastName = LastName;
        links.allName = AllName;
    });
}

} // namespace ostrel

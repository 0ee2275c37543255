#include "control/Guard.h"
#include "control/PageScopeOf.h"
#include "tablepages/PageCreateTable.h"
#include "tablepages/PageNames.h"

namespace ostrel {

namespace {

tablepages::TableScope ScopeOf(State& state, Context& context) {
    return {PageScopeOf(context, state), state.table, state.headerLinks, state.separate};
}

} // namespace

Flag OstrelWebHelp::PageCreateTable(const Text& FilePath, const Text& Title, Long NumberRows,
                                    Long NumberColumns, const Array<Text>& ColumnNames,
                                    const Array<Flag>& ColumnRight, const Grid<Text>& CellValues,
                                    const Grid<Text>& CellTags, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        return tablepages::PageCreateTable(ScopeOf(state_, context_),
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
    return Guarded([&]() -> Flag {
        return tablepages::PageCreateTable(
            ScopeOf(state_, context_),
            {FilePath, Title, Cells.Rows(), Cells.Columns(), ColumnNames, ColumnRight, Cells, {}},
            ErrorMessage);
    });
}

Array<Text> OstrelWebHelp::PageCreateTableFiles(const Text& FilePath, const Array<Text>& ColumnNames,
                                                const CellTable& Cells) {
    return Guarded([&] {
        return tablepages::FileNames(
            ScopeOf(state_, context_),
            {FilePath, {}, Cells.Rows(), Cells.Columns(), ColumnNames, {}, Cells, {}});
    });
}

Long OstrelWebHelp::PageCreateTableMaxSubHeader() {
    return Guarded([&] { return state_.headerLinks.MaxRow(); });
}

Flag OstrelWebHelp::PageTableHeaderLinksAdd(const Text& Name, const Text& Link, Text& Error,
                                            const Text& ToolTip, Flag Right, Long Options, Long Row) {
    return Guarded([&]() -> Flag {
        return state_.headerLinks.Add({Name, Link, ToolTip, Right, Row, Options}, Error);
    });
}

void OstrelWebHelp::PageTableHeaderLinksClear() {
    Guarded([&] { state_.headerLinks.Clear(); });
}

Flag OstrelWebHelp::PageTableHeaderLinksFormat(Long Row, Long Position, const Text& Size, Flag Bold,
                                               Flag Italic, const Text& NoLinkColour, Flag CentreAll) {
    return Guarded([&]() -> Flag {
        return state_.headerLinks.AddFormat({Row, Position, Size, Bold, Italic, NoLinkColour, CentreAll});
    });
}

void OstrelWebHelp::PageTableHeaderLinksShow(Flag Above, Flag Below, Flag AboveRepeat, Flag BelowRepeat) {
    Guarded([&] { state_.headerLinks.show = {Above, Below, AboveRepeat, BelowRepeat}; });
}

void OstrelWebHelp::PageTableHeaderNavNames(const Text& FirstName, const Text& PreviousName,
                                            const Text& NextName, const Text& LastName, const Text& AllName) {
    Guarded([&] {
        HeaderLinks& links = state_.headerLinks;
        links.firstName = FirstName;
        links.previousName = PreviousName;
        links.nextName = NextName;
        links.lastName = LastName;
        links.allName = AllName;
    });
}

} // namespace ostrel

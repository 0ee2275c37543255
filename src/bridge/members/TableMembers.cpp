#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> TableMembers() {
    return {
        MEMBER(CreateTable, "Rows Columns CellValues[Rows,Columns] CellTags[Rows,Columns] SpaceColumns Font "
                            "TableTags RowTags SpaceCellHTML EmptyCellHTML"),
        MEMBER(CreateTableAddBlanks, "RowTable NumberBlanks"),
        MEMBER(CreateTableCell, "Tags Font Cell"),
        MEMBER(CreateTableCellEnd, ""),
        MEMBER(CreateTableCellStart, "Tags"),
        MEMBER(CreateTableEnd, ""),
        MEMBER(CreateTableRowEnd, ""),
        MEMBER(CreateTableRowStart, "Tags"),
        MEMBER(CreateTableStart, "Tags"),
        MEMBER(CreateZeroBlank, "Value"),
        MEMBER(FormatCell, "InputString CellWidth TrailString LeadString"),
        MEMBER(LinkSeparateAll, ""),
        MEMBER(LinkSeparateFirst, ""),
        MEMBER(LinkSeparateLast, ""),
        MEMBER(LinkSeparateNext, ""),
        MEMBER(LinkSeparatePrevious, ""),
        MEMBER(SeparatePageValue, "FieldName"),
        MEMBER(PageCreateTable, "FilePath Title NumberRows NumberColumns ColumnNames[NumberColumns] "
                                "ColumnRight[NumberColumns] CellValues[NumberRows,NumberColumns] "
                                "CellTags[NumberRows,NumberColumns] ErrorMessage"),
        MEMBER(PageCreateTableNoTags,
               "FilePath Title NumberRows NumberColumns ColumnNames[NumberColumns] "
               "ColumnRight[NumberColumns] CellValues[NumberRows,NumberColumns] ErrorMessage"),
        MEMBER(PageCreateTableFrom, "FilePath Title ColumnNames ColumnRight Cells ErrorMessage"),
        MEMBER(PageCreateTableFiles, "FilePath ColumnNames Cells"),
        MEMBER(PageCreateTableMaxSubHeader, ""),
        MEMBER(PageTableHeaderLinksAdd, "Name Link Error ToolTip Right Options Row"),
        MEMBER(PageTableHeaderLinksClear, ""),
        MEMBER(PageTableHeaderLinksFormat, "Row Position Size Bold Italic NoLinkColour CentreAll"),
        MEMBER(PageTableHeaderLinksShow, "Above Below AboveRepeat BelowRepeat"),
        MEMBER(PageTableHeaderNavNames, "FirstName PreviousName NextName LastName AllName"),
    };
}

} // namespace ostrel::bridge

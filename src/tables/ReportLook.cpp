#include "tables/ReportLook.h"

#include "html/FontType.h"
#include "tablepages/TableTypes.h"
#include "tables/ReportStyle.h"

namespace ostrel::tables {

namespace {

constexpr const char* DefaultHeaderColour = "#DCE4EE";
constexpr const char* DefaultTotalColour = "#EDF1F6";
constexpr const char* DefaultLinkColour = "#1F5FA8";
constexpr const char* UpMark = "&nbsp;&#9650;";
constexpr const char* DownMark = "&nbsp;&#9660;";
constexpr const char* DefaultFont =
    "\"Segoe UI\", \"Helvetica Neue\", Helvetica, Arial, \"Liberation Sans\", sans-serif";

StyleChoice StyleOf(const Look& look, const OstrelWebHelp& web) {
    return {look.font.empty() ? Text(DefaultFont) : look.font, web.PageTableHeaderBGColor(),
            look.linkColour.empty() ? Text(DefaultLinkColour) : look.linkColour, look.striped};
}

void ApplyDefaultLook(const Look& look, OstrelWebHelp& web) {
    if (look.headerColour.empty()) web.PageTableHeaderBGColor(DefaultHeaderColour);
    web.PageMeta(PageStyle(StyleOf(look, web)));
    web.PageFontSizeSet(owhFontTitle, "6");
    web.PageFontBoldSet(owhFontTitle, true);
    web.PageFontColourSet(owhFontSubTitle, "#52606D");
    web.PageFontColourSet(owhFontFooter, "#52606D");
    // The style sheet sets edges and vertical alignment, so that cells need no attributes for them.
    web.PageTableAddLeft("");
    web.PageTableAddRight("");
    web.PageTableVAlign("");
    web.PageTableHeaderVAlign("");
    web.PageTableHeaderBelow(owhSpaceNone);
    web.PageTableTotalAbove(owhSpaceNone);
    web.PageTableTotalBreakAbove(owhSpaceNone);
    web.PageTableTotalSortAbove(owhSpaceNone);
    for (auto let : {static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalColour),
                     static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalBreakColour),
                     static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalSortColour)})
        (web.*let)(DefaultTotalColour);
    web.PageTableTotalBold(true);
}

} // namespace

void ApplyLook(const Look& look, OstrelWebHelp& web) {
    if (!look.headerColour.empty()) web.PageTableHeaderBGColor(look.headerColour);
    if (look.plain) {
        if (!look.font.empty()) web.PageFont(web.CreateFontStart(look.font, "", ""));
        web.PageLinkColour(look.linkColour);
    } else {
        ApplyDefaultLook(look, web);
    }
    if (!look.background.empty()) web.PageBackgroundColour(look.background);
    if (look.pattern) {
        web.PageTableBodyPattern(look.pattern->pattern);
        web.PageTableBodyColor(look.pattern->colour);
        web.PageTableBodyColor2(look.pattern->second);
    }
    if (look.border) web.PageTableBorder(*look.border);
    web.PageTableHeaderRepeat(look.repeatHeader);
    web.PageTableZeroBlank(look.blankZeros);
    web.PageTableIgnoreBlankRows(look.skipBlankRows);
    web.PageTableIgnoreBlankColumns(look.skipBlankColumns);
    web.PageAnchorTop("top");
    web.PageAnchorBottom("bottom");
}

std::unique_ptr<PageHeads> ApplyTableLook(const Look& look, const InputTable& table, OstrelWebHelp& web) {
    if (look.plain) return nullptr;
    const StyleChoice choice = StyleOf(look, web);
    web.PageTableOrderUpMark(UpMark);
    web.PageTableOrderDownMark(DownMark);
    web.PageTableTotalGroup(true);
    Text recordStyle = web.PageMeta();
    // The user may have set a head of their own.
    if (recordStyle == PageStyle(choice)) {
        const TableLayout layout = LayOutTable(table, web);
        web.PageMeta(TableStyle(choice, layout));
        if (!layout.columns.empty()) {
            web.PageTableRowGroup(RowsOfGroup(layout));
            web.PageTableBlankCells(true);
        }
    }
    return std::make_unique<PageHeads>(table, web, std::move(recordStyle));
}

} // namespace ostrel::tables

#include "control/Guard.h"
#include "control/PageScopeOf.h"
#include "html/Elements.h"
#include "html/TableBuilder.h"

namespace ostrel {

void OstrelWebHelp::AddHTMLTag(Text& TagString, const Text& TagName, const Text& TagValue) {
    Guarded([&] { html::AddHTMLTag(TagString, TagName, TagValue); });
}

Text OstrelWebHelp::CreateAnchor(const Text& Anchor) {
    return Guarded([&] { return html::CreateAnchor(Anchor); });
}

Text OstrelWebHelp::CreateAnchorName(const Text& AnchorName) {
    return Guarded([&] { return html::CreateAnchorName(AnchorName); });
}

Text OstrelWebHelp::CreateBody(const Text& Body, const Text& BackGround, const Text& BackGroundColour,
                               const Text& LinkColour, const Text& LinkVisibleColour,
                               const Text& LinkActiveColour) {
    return Guarded([&] {
        Rope body;
        body.Append(nullptr, Body);
        return html::CreateBody(
                   PageScopeOf(context_, state_), std::move(body),
                   {BackGround, BackGroundColour, LinkColour, LinkVisibleColour, LinkActiveColour})
            .ToText();
    });
}

Text OstrelWebHelp::CreateBreak() {
    return Guarded([] { return Text("<BR>"); });
}

Text OstrelWebHelp::CreateFontEnd() {
    return Guarded([] { return Text("</FONT>"); });
}

Text OstrelWebHelp::CreateFontStart(const Text& Face, const Text& Size, const Text& Colour) {
    return Guarded([&] { return html::CreateFontStart(Face, Size, Colour); });
}

Text OstrelWebHelp::CreateHeader(const Text& Title, const Text& Author, const Text& Keywords,
                                 const Text& Description, const Text& MetaTags) {
    return Guarded([&] {
        return html::CreateHeader(PageScopeOf(context_, state_), Title, Author, Keywords, Description,
                                  MetaTags);
    });
}

Text OstrelWebHelp::CreateImage(const Text& Image, const Text& Alt, const Text& Border, const Text& Width,
                                const Text& Height, const Text& Align) {
    return Guarded([&] {
        return html::CreateImage(PageScopeOf(context_, state_), Image, Alt, Border, Width, Height, Align);
    });
}

Text OstrelWebHelp::CreateLine(const Text& LineHeight, const Text& LineWidth, const Text& Colour) {
    return Guarded([&] { return html::CreateLine(LineHeight, LineWidth, Colour); });
}

Text OstrelWebHelp::CreateLink(const Text& Hyperlink, const Text& Description, Flag Bold, Flag Italic,
                               Flag NewWindow) {
    return Guarded([&] {
        return html::CreateLink(PageScopeOf(context_, state_), Hyperlink, Description, Bold, Italic,
                                NewWindow);
    });
}

Text OstrelWebHelp::CreateLinkTitle(const Text& Hyperlink, const Text& Description, const Text& Title,
                                    Flag Bold, Flag Italic, Flag NewWindow) {
    return Guarded([&] {
        return html::CreateLinkTitle(PageScopeOf(context_, state_), Hyperlink, Description, Title, Bold,
                                     Italic, NewWindow);
    });
}

Text OstrelWebHelp::CreateLinkTitleSplit(const Text& Hyperlink, const Text& Description, const Text& Title,
                                         Flag Bold, Flag Italic, Flag NewWindow) {
    return Guarded([&] {
        return html::CreateLinkTitleSplit(PageScopeOf(context_, state_), Hyperlink, Description, Title, Bold,
                                          Italic, NewWindow);
    });
}

Text OstrelWebHelp::CreateListEnd(Flag OrderedList) {
    return Guarded([&] { return html::CreateListEnd(OrderedList); });
}

Text OstrelWebHelp::CreateListItem(const Text& Element, Flag Space) {
    return Guarded([&] { return html::CreateListItem(Element, Space); });
}

Text OstrelWebHelp::CreateListStart(Flag OrderedList) {
    return Guarded([&] { return html::CreateListStart(OrderedList); });
}

Text OstrelWebHelp::CreateMeta(const Text& Name, const Text& Content) {
    return Guarded([&] { return html::CreateMeta(Name, Content); });
}

Text OstrelWebHelp::CreateMetaClientPull(Long Seconds, const Text& URL) {
    return Guarded([&] { return html::CreateMetaClientPull(Seconds, URL); });
}

Text OstrelWebHelp::CreateParagraph(const Text& Paragraph, Flag Centre) {
    return Guarded([&] { return html::CreateParagraph(Paragraph, Centre); });
}

Text OstrelWebHelp::CreateParagraphEnd() {
    return Guarded([] { return Text("</P>"); });
}

Text OstrelWebHelp::CreateParagraphFixed(const Text& Font, const Text& Paragraph) {
    return Guarded([&] { return html::CreateParagraphFixed(Font, Paragraph); });
}

Text OstrelWebHelp::CreateParagraphStart() {
    return Guarded([] { return Text("<P>"); });
}

Text OstrelWebHelp::CreateParagraphsFromText(const Text& InputString, Flag Breaks, Flag Multiple,
                                             Flag IgnoreReturn, Flag IgnoreLineFeed) {
    return Guarded([&] {
        return html::CreateParagraphsFromText(InputString, Breaks, Multiple, IgnoreReturn, IgnoreLineFeed);
    });
}

Text OstrelWebHelp::CreateSpaces(Long NumberSpaces) {
    return Guarded([&] { return html::CreateSpaces(NumberSpaces); });
}

Text OstrelWebHelp::CreateString(const Text& InputString, Flag Bold, Flag Italic, Flag Underline) {
    return Guarded([&] { return html::CreateString(InputString, Bold, Italic, Underline); });
}

Text OstrelWebHelp::CreateStringBold(const Text& InputString) {
    return Guarded([&] { return html::CreateStringBold(InputString); });
}

Text OstrelWebHelp::CreateStringColour(const Text& InputString, const Text& Colour, Flag Bold, Flag Italic,
                                       Flag Underline) {
    return Guarded([&] { return html::CreateStringColour(InputString, Colour, Bold, Italic, Underline); });
}

Text OstrelWebHelp::CreateStringItalic(const Text& InputString) {
    return Guarded([&] { return html::CreateStringItalic(InputString); });
}

Text OstrelWebHelp::CreateStringJavaScript(const Text& InputString) {
    return Guarded([&] { return html::CreateStringJavaScript(InputString); });
}

Text OstrelWebHelp::CreateStringUnderline(const Text& InputString) {
    return Guarded([&] { return html::CreateStringUnderline(InputString); });
}

Text OstrelWebHelp::CreateStringURL(const Text& InputString) {
    return Guarded([&] { return html::CreateStringURL(InputString); });
}

Text OstrelWebHelp::CreateTable(Long Rows, Long Columns, const Grid<Text>& CellValues,
                                const Grid<Text>& CellTags, Flag SpaceColumns, const Text& Font,
                                const Text& TableTags, const Text& RowTags, const Text& SpaceCellHTML,
                                const Text& EmptyCellHTML) {
    return Guarded([&] {
        const html::TableLook look{SpaceColumns,  Font.empty() ? state_.help.HelpFont : Font,
                                   TableTags,     RowTags,
                                   SpaceCellHTML, EmptyCellHTML};
        return html::CreateTable(context_, Rows, Columns, CellValues, CellTags, look);
    });
}

void OstrelWebHelp::CreateTableAddBlanks(Text& RowTable, Long& NumberBlanks) {
    Guarded([&] { html::CreateTableAddBlanks(RowTable, NumberBlanks); });
}

Text OstrelWebHelp::CreateTableCell(const Text& Tags, const Text& Font, const Text& Cell) {
    return Guarded([&] { return html::CreateTableCell(Tags, Font, Cell); });
}

Text OstrelWebHelp::CreateTableCellEnd() {
    return Guarded([] { return Text("</TD>"); });
}

Text OstrelWebHelp::CreateTableCellStart(const Text& Tags) {
    return Guarded([&] { return html::CreateTableCellStart(Tags); });
}

Text OstrelWebHelp::CreateTableEnd() {
    return Guarded([] { return Text("</TABLE>"); });
}

Text OstrelWebHelp::CreateTableRowEnd() {
    return Guarded([] { return Text("</TR>"); });
}

Text OstrelWebHelp::CreateTableRowStart(const Text& Tags) {
    return Guarded([&] { return html::CreateTableRowStart(Tags); });
}

Text OstrelWebHelp::CreateTableStart(const Text& Tags) {
    return Guarded([&] { return html::CreateTableStart(Tags); });
}

Text OstrelWebHelp::CreateZeroBlank(const Text& Value) {
    return Guarded([&] { return html::CreateZeroBlank(Value, state_.service.DecimalDelimiter); });
}

Text OstrelWebHelp::FormatCell(const Text& InputString, Long CellWidth, const Text& TrailString,
                               const Text& LeadString) {
    return Guarded([&] { return html::FormatCell(InputString, CellWidth, TrailString, LeadString); });
}

Text OstrelWebHelp::LinkSeparateAll() {
    return Guarded([&] { return state_.separate.all; });
}

Text OstrelWebHelp::LinkSeparateFirst() {
    return Guarded([&] { return state_.separate.first; });
}

Text OstrelWebHelp::LinkSeparateLast() {
    return Guarded([&] { return state_.separate.last; });
}

Text OstrelWebHelp::LinkSeparateNext() {
    return Guarded([&] { return state_.separate.next; });
}

Text OstrelWebHelp::LinkSeparatePrevious() {
    return Guarded([&] { return state_.separate.previous; });
}

Text OstrelWebHelp::SeparatePageValue(const Text& FieldName) {
    return Guarded([&] { return html::SeparatePageValue(state_.separate, FieldName); });
}

} // namespace ostrel

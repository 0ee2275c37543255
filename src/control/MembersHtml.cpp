#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "html/Elements.h"
#include "html/TableBuilder.h"

namespace ostrel {

void OstrelWebHelp::AddHTMLTag(Text& TagString, const Text& TagName, const Text& TagValue) {
    parts_->guard([&] { html::AddHTMLTag(TagString, TagName, TagValue); });
}

Text OstrelWebHelp::CreateAnchor(const Text& Anchor) {
    return parts_->guard([&] { return html::CreateAnchor(Anchor); });
}

Text OstrelWebHelp::CreateAnchorName(const Text& AnchorName) {
    return parts_->guard([&] { return html::CreateAnchorName(AnchorName); });
}

Text OstrelWebHelp::CreateBody(const Text& Body, const Text& BackGround, const Text& BackGroundColour,
                               const Text& LinkColour, const Text& LinkVisibleColour,
                               const Text& LinkActiveColour) {
    return parts_->guard([&] {
        Rope body;
        body.Append(nullptr, Body);
        return html::CreateBody(
                   parts_->PageScope(), std::move(body),
                   {BackGround, BackGroundColour, LinkColour, LinkVisibleColour, LinkActiveColour})
            .ToText();
    });
}

Text OstrelWebHelp::CreateBreak() {
    return parts_->guard([] { return Text("<BR>"); });
}

Text OstrelWebHelp::CreateFontEnd() {
    return parts_->guard([] { return Text("</FONT>"); });
}

Text OstrelWebHelp::CreateFontStart(const Text& Face, const Text& Size, const Text& Colour) {
    return parts_->guard([&] { return html::CreateFontStart(Face, Size, Colour); });
}

Text OstrelWebHelp::CreateHeader(const Text& Title, const Text& Author, const Text& Keywords,
                                 const Text& Description, const Text& MetaTags) {
    return parts_->guard([&] {
        return html::CreateHeader(parts_->PageScope(), Title, Author, Keywords, Description, MetaTags);
    });
}

Text OstrelWebHelp::CreateImage(const Text& Image, const Text& Alt, const Text& Border, const Text& Width,
                                const Text& Height, const Text& Align) {
    return parts_->guard(
        [&] { return html::CreateImage(parts_->PageScope(), Image, Alt, Border, Width, Height, Align); });
}

Text OstrelWebHelp::CreateLine(const Text& LineHeight, const Text& LineWidth, const Text& Colour) {
    return parts_->guard([&] { return html::CreateLine(LineHeight, LineWidth, Colour); });
}

Text OstrelWebHelp::CreateLink(const Text& Hyperlink, const Text& Description, Flag Bold, Flag Italic,
                               Flag NewWindow) {
    return parts_->guard([&] {
        return html::CreateLink(parts_->PageScope(), Hyperlink, Description, Bold, Italic, NewWindow);
    });
}

Text OstrelWebHelp::CreateLinkTitle(const Text& Hyperlink, const Text& Description, const Text& Title,
                                    Flag Bold, Flag Italic, Flag NewWindow) {
    return parts_->guard([&] {
        return html::CreateLinkTitle(parts_->PageScope(), Hyperlink, Description, Title, Bold, Italic,
                                     NewWindow);
    });
}

Text OstrelWebHelp::CreateLinkTitleSplit(const Text& Hyperlink, const Text& Description, const Text& Title,
                                         Flag Bold, Flag Italic, Flag NewWindow) {
    return parts_->guard([&] {
        return html::CreateLinkTitleSplit(parts_->PageScope(), Hyperlink, Description, Title, Bold, Italic,
                                          NewWindow);
    });
}

Text OstrelWebHelp::CreateListEnd(Flag OrderedList) {
    return parts_->guard([&] { return html::CreateListEnd(OrderedList); });
}

Text OstrelWebHelp::CreateListItem(const Text& Element, Flag Space) {
    return parts_->guard([&] { return html::CreateListItem(Element, Space); });
}

Text OstrelWebHelp::CreateListStart(Flag OrderedList) {
    return parts_->guard([&] { return html::CreateListStart(OrderedList); });
}

Text OstrelWebHelp::CreateMeta(const Text& Name, const Text& Content) {
    return parts_->guard([&] { return html::CreateMeta(Name, Content); });
}

Text OstrelWebHelp::CreateMetaClientPull(Long Seconds, const Text& URL) {
    return parts_->guard([&] { return html::CreateMetaClientPull(Seconds, URL); });
}

Text OstrelWebHelp::CreateParagraph(const Text& Paragraph, Flag Centre) {
    return parts_->guard([&] { return html::CreateParagraph(Paragraph, Centre); });
}

Text OstrelWebHelp::CreateParagraphEnd() {
    return parts_->guard([] { return Text("</P>"); });
}

Text OstrelWebHelp::CreateParagraphFixed(const Text& Font, const Text& Paragraph) {
    return parts_->guard([&] { return html::CreateParagraphFixed(Font, Paragraph); });
}

Text OstrelWebHelp::CreateParagraphStart() {
    return parts_->guard([] { return Text("<P>"); });
}

Text OstrelWebHelp::CreateParagraphsFromText(const Text& InputString, Flag Breaks, Flag Multiple,
                                             Flag IgnoreReturn, Flag IgnoreLineFeed) {
    return parts_->guard([&] {
        return html::CreateParagraphsFromText(InputString, Breaks, Multiple, IgnoreReturn, IgnoreLineFeed);
    });
}

Text OstrelWebHelp::CreateSpaces(Long NumberSpaces) {
    return parts_->guard([&] { return html::CreateSpaces(NumberSpaces); });
}

Text OstrelWebHelp::CreateString(const Text& InputString, Flag Bold, Flag Italic, Flag Underline) {
    return parts_->guard([&] { return html::CreateString(InputString, Bold, Italic, Underline); });
}

Text OstrelWebHelp::CreateStringBold(const Text& InputString) {
    return parts_->guard([&] { return html::CreateStringBold(InputString); });
}

Text OstrelWebHelp::CreateStringColour(const Text& InputString, const Text& Colour, Flag Bold, Flag Italic,
                                       Flag Underline) {
    return parts_->guard(
        [&] { return html::CreateStringColour(InputString, Colour, Bold, Italic, Underline); });
}

Text OstrelWebHelp::CreateStringItalic(const Text& InputString) {
    return parts_->guard([&] { return html::CreateStringItalic(InputString); });
}

Text OstrelWebHelp::CreateStringJavaScript(const Text& InputString) {
    return parts_->guard([&] { return html::CreateStringJavaScript(InputString); });
}

Text OstrelWebHelp::CreateStringUnderline(const Text& InputString) {
    return parts_->guard([&] { return html::CreateStringUnderline(InputString); });
}

Text OstrelWebHelp::CreateStringURL(const Text& InputString) {
    return parts_->guard([&] { return html::CreateStringURL(InputString); });
}

Text OstrelWebHelp::CreateTable(Long Rows, Long Columns, const Grid<Text>& CellValues,
                                const Grid<Text>& CellTags, Flag SpaceColumns, const Text& Font,
                                const Text& TableTags, const Text& RowTags, const Text& SpaceCellHTML,
                                const Text& EmptyCellHTML) {
    return parts_->guard([&] {
        const html::TableLook look{SpaceColumns,  Font.empty() ? parts_->state.draft.HelpFont : Font,
                                   TableTags,     RowTags,
                                   SpaceCellHTML, EmptyCellHTML};
        return html::CreateTable(parts_->context, Rows, Columns, CellValues, CellTags, look);
    });
}

void OstrelWebHelp::CreateTableAddBlanks(Text& RowTable, Long& NumberBlanks) {
    parts_->guard([&] { html::CreateTableAddBlanks(RowTable, NumberBlanks); });
}

Text OstrelWebHelp::CreateTableCell(const Text& Tags, const Text& Font, const Text& Cell) {
    return parts_->guard([&] { return html::CreateTableCell(Tags, Font, Cell); });
}

Text OstrelWebHelp::CreateTableCellEnd() {
    return parts_->guard([] { return Text("</TD>"); });
}

Text OstrelWebHelp::CreateTableCellStart(const Text& Tags) {
    return parts_->guard([&] { return html::CreateTableCellStart(Tags); });
}

Text OstrelWebHelp::CreateTableEnd() {
    return parts_->guard([] { return Text("</TABLE>"); });
}

Text OstrelWebHelp::CreateTableRowEnd() {
    return parts_->guard([] { return Text("</TR>"); });
}

Text OstrelWebHelp::CreateTableRowStart(const Text& Tags) {
    return parts_->guard([&] { return html::CreateTableRowStart(Tags); });
}

Text OstrelWebHelp::CreateTableStart(const Text& Tags) {
    return parts_->guard([&] { return html::CreateTableStart(Tags); });
}

Text OstrelWebHelp::CreateZeroBlank(const Text& Value) {
    return parts_->guard(
        [&] { return html::CreateZeroBlank(Value, parts_->state.service.DecimalDelimiter); });
}

Text OstrelWebHelp::FormatCell(const Text& InputString, Long CellWidth, const Text& TrailString,
                               const Text& LeadString) {
    return parts_->guard([&] { return html::FormatCell(InputString, CellWidth, TrailString, LeadString); });
}

Text OstrelWebHelp::LinkSeparateAll() {
    return parts_->guard([&] { return parts_->state.separate.all; });
}

Text OstrelWebHelp::LinkSeparateFirst() {
    return parts_->guard([&] { return parts_->state.separate.first; });
}

Text OstrelWebHelp::LinkSeparateLast() {
    return parts_->guard([&] { return parts_->state.separate.last; });
}

Text OstrelWebHelp::LinkSeparateNext() {
    return parts_->guard([&] { return parts_->state.separate.next; });
}

Text OstrelWebHelp::LinkSeparatePrevious() {
    return parts_->guard([&] { return parts_->state.separate.previous; });
}

Text OstrelWebHelp::SeparatePageValue(const Text& FieldName) {
    return parts_->guard([&] { return html::SeparatePageValue(parts_->state.separate, FieldName); });
}

} // namespace ostrel

#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> ElementMembers() {
    return {
        MEMBER(AddHTMLTag, "TagString TagName TagValue"),
        MEMBER(CreateAnchor, "Anchor"),
        MEMBER(CreateAnchorName, "AnchorName"),
        MEMBER(CreateBody, "Body BackGround BackGroundColour LinkColour LinkVisibleColour LinkActiveColour"),
        MEMBER(CreateBreak, ""),
        MEMBER(CreateFontEnd, ""),
        MEMBER(CreateFontStart, "Face Size Colour"),
        MEMBER(CreateHeader, "Title Author Keywords Description MetaTags"),
        MEMBER(CreateImage, "Image Alt Border Width Height Align"),
        MEMBER(CreateLine, "LineHeight LineWidth Colour"),
        MEMBER(CreateLink, "Hyperlink Description Bold Italic NewWindow"),
        MEMBER(CreateLinkTitle, "Hyperlink Description Title Bold Italic NewWindow"),
        MEMBER(CreateLinkTitleSplit, "Hyperlink Description Title Bold Italic NewWindow"),
        MEMBER(CreateListEnd, "OrderedList"),
        MEMBER(CreateListItem, "Element Space"),
        MEMBER(CreateListStart, "OrderedList"),
        MEMBER(CreateMeta, "Name Content"),
        MEMBER(CreateMetaClientPull, "Seconds URL"),
        MEMBER(CreateParagraph, "Paragraph Centre"),
        MEMBER(CreateParagraphEnd, ""),
        MEMBER(CreateParagraphFixed, "Font Paragraph"),
        MEMBER(CreateParagraphStart, ""),
        MEMBER(CreateParagraphsFromText, "InputString Breaks Multiple IgnoreReturn IgnoreLineFeed"),
        MEMBER(CreateSpaces, "NumberSpaces"),
        MEMBER(CreateString, "InputString Bold Italic Underline"),
        MEMBER(CreateStringBold, "InputString"),
        MEMBER(CreateStringColour, "InputString Colour Bold Italic Underline"),
        MEMBER(CreateStringItalic, "InputString"),
        MEMBER(CreateStringJavaScript, "InputString"),
        MEMBER(CreateStringUnderline, "InputString"),
        MEMBER(CreateStringURL, "InputString"),
    };
}

} // namespace ostrel::bridge

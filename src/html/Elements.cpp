#include "html/Elements.h"

#include "html/RepeatBound.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

Text Wrapped(TextView start, TextView content, TextView end) {
    Text result;
    result.reserve(start.size() + content.size() + end.size());
    return result.append(start).append(content).append(end);
}

Text WrappedUnlessEmpty(TextView start, TextView content, TextView end) {
    return content.empty() ? Text() : Wrapped(start, content, end);
}

void AddUnlessEmpty(Text& tag, TextView name, TextView value) {
    if (!value.empty()) AddHTMLTag(tag, name, value);
}

Text StartTag(TextView element, TextView tags) {
    tags = TrimBlanks(tags);
    Text result;
    result.reserve(element.size() + tags.size() + 2);
    result.append(element);
    if (!tags.empty()) result.append(" ").append(tags);
    return result.append(">");
}

} // namespace

void AddHTMLTag(Text& tag, TextView name, TextView value) {
    if (!tag.empty()) {
        const Text attribute = Wrapped(" ", name, "=");
        if (StartsWithText(tag, TextView(attribute).substr(1)) || FindText(tag, attribute) != NotFound)
            return;
    }
    tag.append(" ").append(name);
    if (!value.empty()) tag.append("=\"").append(value).append("\"");
    tag = TrimBlanks(tag);
}

Text CreateAnchor(TextView anchor) { return Wrapped("<A NAME=\"", anchor, "\">"); }

Text CreateFontStart(TextView face, TextView size, TextView colour) {
    Text result = "<FONT";
    if (!face.empty()) result.append(" FACE=\"").append(face).append("\"");
    if (!size.empty()) result.append(" SIZE=\"").append(size).append("\"");
    if (!colour.empty()) result.append(" COLOR=\"").append(colour).append("\"");
    return result.append(">");
}

Text CreateLine(TextView height, TextView width, TextView colour) {
    Text result = "<HR";
    AddUnlessEmpty(result, "HEIGHT", height);
    AddUnlessEmpty(result, "WIDTH", width);
    AddUnlessEmpty(result, "COLOR", colour);
    return result.append(">");
}

Text CreateListStart(bool ordered) { return ordered ? "<OL>" : "<UL>"; }

Text CreateListEnd(bool ordered) { return ordered ? "</OL>" : "</UL>"; }

Text CreateListItem(TextView element, bool space) {
    return WrappedUnlessEmpty("<LI>", element, space ? "</P>" : "");
}

Text CreateMeta(TextView name, TextView content) {
    return Wrapped("<META NAME=\"", name, "\" CONTENT=\"").append(content).append("\">");
}

Text CreateMetaClientPull(Long seconds, TextView url) {
    return Wrapped("<META HTTP-EQUIV=\"REFRESH\" CONTENT=\"", FromLong(seconds), ";URL='")
        .append(url)
        .append("'\">");
}

Text CreateParagraph(TextView paragraph, bool centre) {
    const TextView content = TrimCrLfView(paragraph);
    return centre ? Wrapped("<CENTER><P>", content, "</P></CENTER>") : Wrapped("<P>", content, "</P>");
}

Text CreateParagraphFixed(TextView font, TextView paragraph) {
    return Text(font).append(Wrapped("<PRE>", paragraph, font.empty() ? "</PRE>" : "</PRE></FONT>"));
}

Text CreateSpaces(Long count) {
    constexpr TextView space = "&nbsp;";
    Text result;
    if (count <= 0) return result;
    count = BoundedCount(count, 0, space.size());
    result.reserve(static_cast<std::size_t>(count) * space.size());
    for (Long i = 0; i < count; ++i) result.append(space);
    return result;
}

Text CreateStringBold(TextView text) { return WrappedUnlessEmpty("<B>", text, "</B>"); }

Text CreateStringItalic(TextView text) { return WrappedUnlessEmpty("<I>", text, "</I>"); }

Text CreateStringUnderline(TextView text) { return WrappedUnlessEmpty("<U>", text, "</U>"); }

Text CreateStringColour(TextView text, TextView colour, bool bold, bool italic, bool underline) {
    if (text.empty()) return {};
    Text result = CreateFontStart({}, {}, colour);
    if (bold) result.append("<B>");
    if (italic) result.append("<I>");
    if (underline) result.append("<U>");
    result.append(text);
    if (underline) result.append("</U>");
    if (italic) result.append("</I>");
    if (bold) result.append("</B>");
    return result.append("</FONT>");
}

Text CreateTableStart(TextView tags) { return StartTag("<TABLE", tags); }

Text CreateTableRowStart(TextView tags) { return StartTag("<TR", tags); }

Text CreateTableCellStart(TextView tags) { return StartTag("<TD", tags); }

} // namespace ostrel::html

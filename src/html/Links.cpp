#include "html/Elements.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

constexpr TextView Break = "<BR>";
constexpr TextView Space = "&nbsp;";

/// Tells the host where a link leads to a local file that is not there.
void TestFile(const PageScope& scope, TextView link, Event<Text>& missing) {
    Text path = LocalPathFromLink(scope, link);
    if (!path.empty() && !services::FileExists(*scope.context.platform.files, path)) missing(path);
}

/// Splits a line into edge blanks, core and edge blanks.
void SplitEdges(TextView line, TextView& before, TextView& core, TextView& after) {
    core = line;
    while (core.starts_with(' ') || StartsWithText(core, Space))
        core.remove_prefix(core[0] == ' ' ? 1 : Space.size());
    before = line.substr(0, line.size() - core.size());
    const TextView rest = core;
    while (core.ends_with(' ') || EndsWithText(core, Space))
        core.remove_suffix(core.back() == ' ' ? 1 : Space.size());
    after = rest.substr(core.size());
}

} // namespace

Text LocalPathFromLink(const PageScope& scope, TextView link) {
    if (link.find('/') != NotFound) return {};
    if (link.find('\\') != NotFound) return Text(link);
    if (scope.draft.HelpRemote || scope.service.DirectoryHelp.empty()) return {};
    return services::AddMissingBackslash(scope.service.DirectoryHelp).append(link);
}

Text CreateImage(const PageScope& scope, TextView image, TextView alt, TextView border, TextView width,
                 TextView height, TextView align) {
    Text result = "<IMG SRC=\"";
    result.append(image).append("\"");
    if (!alt.empty()) AddHTMLTag(result, "ALT", alt);
    AddHTMLTag(result, "BORDER", border.empty() ? "0" : border);
    if (!width.empty()) AddHTMLTag(result, "WIDTH", width);
    if (!height.empty()) AddHTMLTag(result, "HEIGHT", height);
    if (!align.empty()) AddHTMLTag(result, "ALIGN", align);
    result.append(">");
    if (scope.draft.TestImage && !image.empty()) TestFile(scope, image, scope.context.events.ImageMissing);
    return result;
}

void AppendLinkTitle(const PageScope& scope, Text& output, TextView hyperlink, TextView description,
                     TextView title, bool bold, bool italic, bool newWindow) {
    output.append("<A HREF=\"").append(hyperlink).append("\"");
    if (!title.empty()) output.append(" TITLE=\"").append(title).append("\"");
    if (newWindow) output.append(" TARGET=\"_blank\"");
    output.append(">");
    if (bold) output.append("<B>");
    if (italic) output.append("<I>");
    output.append(description);
    if (italic) output.append("</I>");
    if (bold) output.append("</B>");
    output.append("</A>");
    if (scope.draft.TestHyperlink && !hyperlink.empty() && !hyperlink.starts_with('#') &&
        !StartsWithText(hyperlink, "mailto:"))
        TestFile(scope, hyperlink, scope.context.events.HyperlinkMissing);
}

Text CreateLinkTitle(const PageScope& scope, TextView hyperlink, TextView description, TextView title,
                     bool bold, bool italic, bool newWindow) {
    Text result;
    result.reserve(hyperlink.size() + description.size() + title.size() + 64);
    AppendLinkTitle(scope, result, hyperlink, description, title, bold, italic, newWindow);
    return result;
}

Text CreateLink(const PageScope& scope, TextView hyperlink, TextView description, bool bold, bool italic,
                bool newWindow) {
    return CreateLinkTitle(scope, hyperlink, description, {}, bold, italic, newWindow);
}

Text CreateLinkTitleSplit(const PageScope& scope, TextView hyperlink, TextView description, TextView title,
                          bool bold, bool italic, bool newWindow) {
    Text result;
    const auto link = [&](TextView text) {
        AppendLinkTitle(scope, result, hyperlink, text, title, bold, italic, newWindow);
    };
    TextView head = description.substr(0, FindText(description, "</P>"));
    const TextView tail = description.substr(head.size());
    std::size_t cut = FindText(head, Break);
    // Edge blanks leave the link only where there are lines to part.
    if (cut == NotFound) {
        link(head);
        return result.append(tail);
    }
    for (;;) {
        TextView before, core, after;
        SplitEdges(head.substr(0, cut), before, core, after);
        result.append(before);
        if (!core.empty()) link(core);
        result.append(after);
        if (cut == NotFound) break;
        result.append(Break);
        head.remove_prefix(cut + Break.size());
        cut = FindText(head, Break);
    }
    return result.append(tail);
}

} // namespace ostrel::html

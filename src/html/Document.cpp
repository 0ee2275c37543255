#include "html/Elements.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

TextView FirstFilled(TextView value, TextView fallback) { return value.empty() ? fallback : value; }

void AppendMeta(Text& head, TextView name, TextView content) {
    if (!content.empty()) head.append(CreateMeta(name, content)).append(LineEnd);
}

} // namespace

Text CreateHeader(const PageScope& scope, TextView title, TextView author, TextView keywords,
                  TextView description, TextView metaTags) {
    const HelpProperties& help = scope.help;
    Text head = "<HEAD>\r\n\r\n";
    const TextView shownTitle = FirstFilled(title, help.HelpTitle);
    if (!shownTitle.empty()) head.append("<TITLE>").append(shownTitle).append("</TITLE>\r\n\r\n");
    head.append("<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1252\">\r\n");
    const TextView meta = FirstFilled(metaTags, help.HelpMeta);
    if (!meta.empty()) head.append(meta).append(LineEnd);
    if (help.HelpRefresh > 0) head.append(CreateMetaClientPull(help.HelpRefresh, help.HelpRefreshTarget));
    head.append(CreateMeta("Generator", scope.service.ProgramName)).append(LineEnd);
    AppendMeta(head, "Author", FirstFilled(author, help.HelpAuthor));
    AppendMeta(head, "Company", help.HelpCompany);
    AppendMeta(head, "Keywords", FirstFilled(keywords, help.HelpKeywords));
    AppendMeta(head, "Description", FirstFilled(description, help.HelpDescription));
    AppendMeta(head, "Robots", help.HelpRobots);
    return head.append("\r\n</HEAD>");
}

Rope CreateBody(const PageScope& scope, Rope body, const BodyLook& look) {
    const HelpProperties& help = scope.help;
    Text start = "<BODY";
    const auto add = [&](TextView name, TextView value, TextView fallback) {
        value = FirstFilled(value, fallback);
        if (!value.empty()) AddHTMLTag(start, name, value);
    };
    add("BACKGROUND", look.background, help.HelpBackground);
    add("BGCOLOR", look.backgroundColour, help.HelpBackgroundColour);
    add("LINK", look.linkColour, help.HelpLinkColour);
    add("VLINK", look.linkVisibleColour, help.HelpLinkVisibleColour);
    add("ALINK", look.linkActiveColour, help.HelpLinkActiveColour);
    start.append(">\r\n\r\n");
    if (!help.HelpFont.empty()) start.append(TrimCrLfView(help.HelpFont)).append(LineGap);

    body.TrimCrLf();
    Rope result(std::move(start));
    result.Append(body);
    result.Append(nullptr, help.HelpFont.empty() ? "\r\n\r\n</BODY>" : "\r\n\r\n</FONT>\r\n\r\n</BODY>");
    return result;
}

} // namespace ostrel::html

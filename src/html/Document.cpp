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
    const HelpProperties& draft = scope.draft;
    Text head = "<HEAD>\r\n\r\n";
    const TextView shownTitle = FirstFilled(title, draft.HelpTitle);
    if (!shownTitle.empty()) head.append("<TITLE>").append(shownTitle).append("</TITLE>\r\n\r\n");
    head.append("<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1252\">\r\n");
    const TextView meta = FirstFilled(metaTags, draft.HelpMeta);
    if (!meta.empty()) head.append(meta).append(LineEnd);
    if (draft.HelpRefresh > 0) head.append(CreateMetaClientPull(draft.HelpRefresh, draft.HelpRefreshTarget));
    head.append(CreateMeta("Generator", scope.service.ProgramName)).append(LineEnd);
    AppendMeta(head, "Author", FirstFilled(author, draft.HelpAuthor));
    AppendMeta(head, "Company", draft.HelpCompany);
    AppendMeta(head, "Keywords", FirstFilled(keywords, draft.HelpKeywords));
    AppendMeta(head, "Description", FirstFilled(description, draft.HelpDescription));
    AppendMeta(head, "Robots", draft.HelpRobots);
    return head.append("\r\n</HEAD>");
}

Rope CreateBody(const PageScope& scope, Rope body, const BodyLook& look) {
    const HelpProperties& draft = scope.draft;
    Text start = "<BODY";
    const auto add = [&](TextView name, TextView value, TextView fallback) {
        value = FirstFilled(value, fallback);
        if (!value.empty()) AddHTMLTag(start, name, value);
    };
    add("BACKGROUND", look.background, draft.HelpBackground);
    add("BGCOLOR", look.backgroundColour, draft.HelpBackgroundColour);
    add("LINK", look.linkColour, draft.HelpLinkColour);
    add("VLINK", look.linkVisibleColour, draft.HelpLinkVisibleColour);
    add("ALINK", look.linkActiveColour, draft.HelpLinkActiveColour);
    start.append(">\r\n\r\n");
    if (!draft.HelpFont.empty()) start.append(TrimCrLfView(draft.HelpFont)).append(LineGap);

    body.TrimCrLf();
    Rope result(std::move(start));
    result.Append(body);
    result.Append(nullptr, draft.HelpFont.empty() ? "\r\n\r\n</BODY>" : "\r\n\r\n</FONT>\r\n\r\n</BODY>");
    return result;
}

} // namespace ostrel::html

#include "html/PageDocument.h"

#include "html/DocumentScan.h"
#include "html/Elements.h"
#include "html/PageProgress.h"

namespace ostrel::html {

namespace {

Rope BetweenPrefixAndSuffix(const PageProperties& settings, const Rope& body) {
    Rope result;
    if (!settings.PageBodyPrefix.empty()) {
        result.Append(settings.PageBodyPrefix);
        result.Append(nullptr, LineGap);
    }
    result.Append(body);
    if (!settings.PageBodySuffix.empty()) {
        result.Append(settings.PageBodySuffix);
        result.Append(nullptr, LineGap);
    }
    return result;
}

} // namespace

Rope CreatePage(const PageScope& scope, const Rope& body) {
    if (HoldsDocumentTags(body)) return PageLineWrap(scope, body);
    const Rope bodyElement = CreateBody(scope, BetweenPrefixAndSuffix(scope.settings, body), {});
    Rope document("<HTML>\r\n\r\n" + CreateHeader(scope, {}, {}, {}, {}, {}).append(LineGap));
    document.Append(bodyElement);
    document.Append(nullptr, "\r\n\r\n</HTML>");
    document = PageLineWrap(scope, document);

    auto& assembled = scope.context.events.PageCreateBody;
    if (assembled.Heard()) {
        Text text = bodyElement.ToText();
        assembled(text);
    }
    if (scope.settings.PageBody.Empty()) scope.settings.PageBody = bodyElement;
    return document;
}

Rope InternalBuild(const PageScope& scope, const Rope& part1, const Rope& part2, const Rope& part3) {
    // A listener may set the parts anew; this page is made of what was asked.
    Rope parts[] = {part1, part2, part3};
    TellProgress(scope, "InternalBuild - Start", scope.settings.ProgressRecords);
    Rope body;
    for (Rope& part : parts) {
        part.TrimCrLf();
        if (part.Empty()) continue;
        body.Append(part);
        body.Append(nullptr, LineGap);
    }
    TellProgress(scope, "InternalBuild - CreatePage", scope.settings.ProgressRecords);
    Rope page = CreatePage(scope, body);
    TellProgress(scope, "InternalBuild - Finish", scope.settings.ProgressRecords);
    return page;
}

} // namespace ostrel::html

#include "html/DocumentScan.h"
#include "html/Elements.h"
#include "html/PageParts.h"

namespace ostrel::html {

namespace {

Rope BetweenPrefixAndSuffix(const PageProperties& page, const Rope& body) {
    Rope result;
    if (!page.PageBodyPrefix.empty()) {
        result.Append(page.PageBodyPrefix);
        result.Append(nullptr, LineGap);
    }
    result.Append(body);
    if (!page.PageBodySuffix.empty()) {
        result.Append(page.PageBodySuffix);
        result.Append(nullptr, LineGap);
    }
    return result;
}

} // namespace

Rope CreatePage(const PageScope& scope, const Rope& body) {
    if (HoldsDocumentTags(body)) return PageLineWrap(scope, body);
    const Rope bodyElement = CreateBody(scope, BetweenPrefixAndSuffix(scope.page, body), {});
    Rope document("<HTML>\r\n\r\n" + CreateHeader(scope, {}, {}, {}, {}, {}).append(LineGap));
    document.Append(bodyElement);
    document.Append(nullptr, "\r\n\r\n</HTML>");
    document = PageLineWrap(scope, document);

    auto& assembled = scope.context.events.PageCreateBody;
    if (assembled.Heard()) {
        Text text = bodyElement.ToText();
        assembled(text);
    }
    if (scope.page.PageBody.Empty()) scope.page.PageBody = bodyElement;
    return document;
}

} // namespace ostrel::html

#include "html/SimplePages.h"

#include <algorithm>

#include "html/Elements.h"
#include "html/FontType.h"
#include "html/PageDraft.h"
#include "html/PageProgress.h"
#include "html/PageSave.h"
#include "html/PageText.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

/// What all simple pages share: the way from the path to the file, with the events. `fill` makes the parts.
template <class Fill>
bool MakePage(const PageScope& scope, const Text& filePath, Text& error, Fill fill) {
    error.clear();
    Text path;
    if (!PageFilePath(scope, filePath, path, error)) return false;
    scope.settings.CurrentCreatePage = path;
    TellProgress(scope, "Starting", 0);
    PageInitialise(scope);
    fill();
    TellProgress(scope, "Saving", 0);
    const PageSaved saved = SavePage(scope, path);
    if (!saved.built) {
        error = saved.error;
        return false;
    }
    TellPageCreated(scope, path, saved);
    TellProgress(scope, "Finished", 0);
    return true;
}

/// The head of the page and its footer.
void FillFrame(const PageScope& scope, TextView title) {
    Text head = PageTitleBlock(scope, title);
    for (const Text& block : {PageTextBlock(scope, scope.settings.PageSubTitle, owhFontSubTitle),
                              PageTextBlock(scope, scope.settings.PageHeader, owhFontHeader)}) {
        if (block.empty()) continue;
        if (!head.empty()) head.append(LineGap);
        head.append(block);
    }
    scope.draft.HelpPart1 = Rope(std::move(head));
    scope.draft.HelpPart3 = Rope(PageTextBlock(scope, scope.settings.PageFooter, owhFontFooter));
}

void FillContent(const PageScope& scope, TextView content, bool centre) {
    scope.draft.HelpPart2 = Rope(PageFontStartTag(scope, owhFontBody) + CreateParagraph(content, centre) +
                                 PageFontEndTag(scope, owhFontBody));
}

Text ListOf(const ListContent& list) {
    if (list.count <= 0) return {};
    Text result(list.header);
    result.append(CreateListStart(list.ordered)).append(LineEnd);
    // Entries that are missing are empty, and an empty one makes no item.
    const Long count = std::min(list.count, list.entries.Count());
    for (Long i = 1; i <= count; ++i) result.append(CreateListItem(*list.entries.Find(i), list.space));
    return result.append(CreateListEnd(list.ordered)).append(list.footer);
}

Text BoxOf(const PageScope& scope, TextView title, TextView body, const Box& box) {
    Text page;
    const auto attribute = [&](TextView name, TextView value) {
        if (!value.empty()) page.append(" ").append(name).append("=\"").append(value).append("\"");
    };
    if (box.pageCentre) page.append("<CENTER>\r\n\r\n");
    page.append("<TABLE");
    attribute("WIDTH", box.pageWidth);
    if (box.boxWidth > 0) {
        attribute("BORDER", FromLong(box.boxWidth));
        page.append(" CELLPADDING=\"5\" CELLSPACING=\"0\"");
        attribute("BORDERCOLOR", box.boxColour);
    } else {
        page.append(" CELLPADDING=\"0\" CELLSPACING=\"0\"");
    }
    attribute("BGCOLOR", box.pageColour);
    page.append(">\r\n\r\n<TR><TD VALIGN=\"TOP\">").append(PageFontStartTag(scope, owhFontBody));
    if (!title.empty())
        page.append(PageFontStartTag(scope, owhFontTitle))
            .append(title)
            .append(PageFontEndTag(scope, owhFontTitle))
            .append("</P>\r\n\r\n<P>");
    page.append(body).append(PageFontEndTag(scope, owhFontBody)).append("</TD></TR>\r\n\r\n</TABLE>");
    if (box.pageCentre) page.append("\r\n\r\n</CENTER>");
    return page;
}

} // namespace

bool PageCreateSimple(const PageScope& scope, const Text& filePath, TextView title, TextView body,
                      Text& error, bool centre) {
    return MakePage(scope, filePath, error, [&] {
        FillFrame(scope, title);
        FillContent(scope, body, centre);
    });
}

bool PageCreateList(const PageScope& scope, const Text& filePath, TextView title, const ListContent& list,
                    Text& error) {
    return MakePage(scope, filePath, error, [&] {
        FillFrame(scope, title);
        FillContent(scope, ListOf(list), false);
    });
}

bool PageCreateSimpleBoxed2(const PageScope& scope, const Text& filePath, TextView title, TextView body,
                            const Box& box, Text& error) {
    return MakePage(scope, filePath, error,
                    [&] { scope.draft.HelpPart2 = Rope(BoxOf(scope, title, body, box)); });
}

} // namespace ostrel::html

#include "tablepages/TitleBlock.h"

#include "html/Elements.h"
#include "html/FontType.h"
#include "html/PageText.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

void SetTitleBlock(const html::PageScope& scope, const TitleText& text) {
    Text type(text.type), title(text.title), body(text.body), sortBy(text.sortBy);
    Flag sortUp = text.sortUp;
    Long record = text.record;
    scope.context.events.PageCreateTableTitle(type, title, body, sortBy, sortUp, record);

    Text part = Text(text.prefix) + html::PageTitleBlock(scope, title);
    const auto add = [&part](const Text& block) {
        if (block.empty()) return;
        if (!part.empty()) part += LineGap;
        part += block;
    };
    add(html::PageTextBlock(scope, scope.settings.PageSubTitle, owhFontSubTitle));
    add(html::PageTextBlock(scope, scope.settings.PageHeader, owhFontHeader));
    add(html::PageTextBlock(scope, body, owhFontBody));
    scope.draft.HelpPart1 = Rope(std::move(part));
}

Text TableTags(const TableOptions& options) {
    if (!options.PageTableTags.empty()) return options.PageTableTags;
    Text tags;
    if (options.PageTableBorder != 0) {
        html::AddHTMLTag(tags, "BORDER", FromLong(options.PageTableBorder));
        if (!options.PageTableBorderColor.empty())
            html::AddHTMLTag(tags, "BORDERCOLOR", options.PageTableBorderColor);
    }
    if (!options.PageTableBackground.empty())
        html::AddHTMLTag(tags, "BACKGROUND", options.PageTableBackground);
    if (!options.PageTableBGColor.empty()) html::AddHTMLTag(tags, "BGCOLOR", options.PageTableBGColor);
    // A table with any attribute states its spacing, even as 0.
    if (options.PageTableCellPadding != 0 || !tags.empty())
        html::AddHTMLTag(tags, "CELLPADDING", FromLong(options.PageTableCellPadding));
    if (options.PageTableCellSpacing != 0 || !tags.empty())
        html::AddHTMLTag(tags, "CELLSPACING", FromLong(options.PageTableCellSpacing));
    return tags;
}

} // namespace ostrel::tablepages

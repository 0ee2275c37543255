#include "tablepages/PageTable.h"

#include "html/FontType.h"
#include "html/PageText.h"
#include "tablepages/TitleBlock.h"

namespace ostrel::tablepages {

LargeBuffer& PageTable::Room() {
    // The body of the main page may still stand in the buffer.
    if (!buffer_ || buffer_.use_count() > 1) buffer_ = std::make_shared<LargeBuffer>();
    buffer_->Clear();
    return *buffer_;
}

void PageTable::Build(const html::PageScope& scope, const TableOptions& options, Long columns, bool empty,
                      const Fill& fill) {
    scope.draft.HelpPart2.Clear();
    Room();

    const Text font = html::PageFontStartTag(scope, owhFontTable);
    if (!empty && columns > 0) {
        html::TableLook look;
        look.spaceColumns = options.PageTableSpace;
        look.font = font.empty() ? scope.draft.HelpFont : font;
        look.tableTags = TableTags(options);
        look.spaceCellHTML = options.PageTableSpaceHTML;
        html::TableWriter table(scope.context, *buffer_, columns, look);
        fill(table);
        table.End();
    }
    Rope part(font);
    part.Append(buffer_, buffer_->View());
    part.Append(html::PageFontEndTag(scope, owhFontTable));
    scope.draft.HelpPart2 = std::move(part);
}

} // namespace ostrel::tablepages

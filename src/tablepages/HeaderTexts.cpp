#include "tablepages/HeaderTexts.h"

#include "html/Elements.h"
#include "html/FontType.h"
#include "html/PageText.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "tablepages/PageNames.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

Text Emphasised(TextView text, bool bold, bool italic) {
    Text result;
    if (bold) result += "<B>";
    if (italic) result += "<I>";
    result += text;
    if (italic) result += "</I>";
    if (bold) result += "</B>";
    return result;
}

} // namespace

Text SortFileName(const ReportFrame& frame, TextView filePath, Long column, TextView suffix,
                  TextView anchor) {
    Text name = SortPageName(frame.options, services::FileName(filePath), column, frame.Name(column), suffix);
    if (!anchor.empty()) name.append("#").append(anchor);
    return name;
}

Text RecordHeader(const ReportFrame& frame, TextView filePath, TextView toolTip, TextView anchor,
                  TextView mark) {
    const TableOptions& options = frame.options;
    if (options.PageTableHeaderRNName.empty()) return {};
    Text target = services::FileName(filePath);
    if (!anchor.empty()) target.append("#").append(anchor);
    const Text name =
        Emphasised(options.PageTableHeaderRNName, options.PageTableHeaderBold, options.PageTableHeaderItalic)
            .append(mark);
    return html::PageFontStartTag(frame.scope.pages, owhFontTableHeader) + options.PageTableAddLeft +
           html::CreateLinkTitle(frame.scope.pages, target, name, toolTip, false, false, false) +
           options.PageTableAddRight + html::PageFontEndTag(frame.scope.pages, owhFontTableHeader);
}

Text HeaderText(const ReportFrame& frame, Long column, TextView filePath, bool up, TextView anchor,
                TextView mark) {
    const TableOptions& options = frame.options;
    const TextView name = frame.Name(column);
    const std::size_t end = std::min(FindText(name, "</P>"), name.size());
    const TextView head = name.substr(0, end), tail = name.substr(end);
    const bool linked = options.PageTableColumnSort.Get(column);

    Text result;
    for (std::size_t start = 0; !head.empty() && start != NotFound;) {
        const std::size_t cut = FindText(head, "<BR>", start);
        Text line = Emphasised(head.substr(start, cut == NotFound ? NotFound : cut - start),
                               options.PageTableHeaderBold, options.PageTableHeaderItalic);
        if (cut == NotFound) line += mark;
        if (linked)
            line = html::CreateLinkTitle(
                frame.scope.pages, SortFileName(frame, filePath, column, up ? "_U" : "_D", anchor), line,
                up ? options.PageTableOrderUpTT : options.PageTableOrderDownTT, false, false, false);
        if (start > 0) result += "<BR>";
        result.append(options.PageTableAddLeft).append(line).append(options.PageTableAddRight);
        start = cut == NotFound ? NotFound : cut + 4;
    }
    result += tail;
    if (result.empty()) return result;
    return html::PageFontStartTag(frame.scope.pages, owhFontTableHeader) + result +
           html::PageFontEndTag(frame.scope.pages, owhFontTableHeader);
}

Text PlainName(const ReportFrame& frame, Long column) {
    if (const Text* plain = frame.input.cells.PlainName(column)) return *plain;
    return services::StripTags(ReplaceAll(frame.Name(column), "<BR>", " "));
}

} // namespace ostrel::tablepages

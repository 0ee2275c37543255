#include "tablepages/TotalFormats.h"

#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

/// The most decimal places of any number in the column, or -1 without a number.
Long DecimalPlaces(const ReportFrame& frame, Long column) {
    const Text& delimiter = frame.scope.pages.service.DecimalDelimiter;
    Long places = -1;
    Text stripped;
    for (Long row = 1; row <= frame.input.rows; ++row) {
        services::StripTagsInto(frame.input.cells.Html(row, column), stripped);
        const TextView text = TrimBlanks(stripped);
        if (text.empty() || !ToDouble(text)) continue;
        const std::size_t point = delimiter.empty() ? NotFound : text.rfind(delimiter);
        const std::size_t behind = point == NotFound ? 0 : text.size() - point - delimiter.size();
        places = std::max(places, static_cast<Long>(behind));
    }
    return places;
}

} // namespace

Text TotalFormat(const ReportFrame& frame, Long column) {
    const TableOptions& options = frame.options;
    Text format = options.PageTableTotalFormat;
    if (const Text* own = options.PageTableColumnTotalFormat.Find(column); own && !own->empty())
        format = *own;
    if (format.empty()) format = "#.00";
    if (options.PageTableColumnTotalTime.Get(column)) format = "Time";
    if (!EqualText(format, "auto")) return format;

    const Long places = options.PageTableColumnTotal.Get(column) ? DecimalPlaces(frame, column) : -1;
    if (places < 0) return "#.00";
    if (places == 0) return "#";
    const Long most = std::min(places, options.PageTableTotalFormatMaxPlaces);
    return "#." + Text(static_cast<std::size_t>(std::max(most, Long{0})), '0');
}

} // namespace ostrel::tablepages

#include "tablepages/HeaderLinkRows.h"

#include "html/Elements.h"
#include "services/Paths.h"
#include "tablepages/SpaceRows.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

/// No table has more link rows than this at one position, whatever numbers the host gave them.
constexpr Long MaxLinkRows = 32000;
/// Nor more memory in them.
constexpr std::size_t MaxLinkBytes = std::size_t{64} << 20;
constexpr TextView Gap = "&nbsp; ";

HeaderLinks::Format FormatOf(const TableScope& scope, Long row, Long mask) {
    for (const HeaderLinks::Format& format : scope.links.formats)
        if (format.row == row && (format.position == 0 || (format.position & mask) != 0)) return format;
    HeaderLinks::Format format;
    format.size = scope.options.PageTableHeaderLinksSize;
    format.bold = scope.options.PageTableHeaderLinksBold;
    format.italic = scope.options.PageTableHeaderLinksItalic;
    return format;
}

struct Target {
    Text address, text;
};

/// Where a link without an address of its own leads, by its name.
Target NamedTarget(const TableScope& scope, const HeaderLinkPlace& place, const Text& name) {
    const Text word = Lower(name);
    if (word == "excel") return {services::FileName(place.csvPath), name};
    if (word == "top") return {"#" + scope.pages.settings.PageAnchorTop, name};
    if (word == "bottom") return {"#" + scope.pages.settings.PageAnchorBottom, name};
    if (place.navigation) {
        const SeparatePage& record = scope.separate;
        if (word == "first") return {record.first, scope.links.firstName};
        if (word == "previous") return {record.previous, scope.links.previousName};
        if (word == "next") return {record.next, scope.links.nextName};
        if (word == "last") return {record.last, scope.links.lastName};
        if (word == "all") return {record.all, scope.links.allName};
    }
    return {{}, name};
}

Text LinkHTML(const TableScope& scope, const HeaderLinkPlace& place, const HeaderLinks::Link& link,
              const HeaderLinks::Format& format) {
    const Target target =
        link.link.empty() ? NamedTarget(scope, place, link.name) : Target{link.link, link.name};
    if (!target.address.empty())
        return html::CreateLinkTitle(scope.pages, target.address, target.text, link.toolTip, format.bold,
                                     format.italic, false);
    // A greyed name holds the place of a link that leads nowhere.
    return html::CreateFontStart({}, {}, format.noLinkColour) +
           html::CreateString(target.text, format.bold, format.italic) + "</FONT>";
}

Text LinkText(const TableOptions& options, TextView text, const Text& size) {
    Text result;
    if (!size.empty()) result = html::CreateFontStart({}, size, {});
    result.append(options.PageTableAddLeft).append(text).append(options.PageTableAddRight);
    if (!size.empty()) result += "</FONT>";
    return result;
}

Text Span(const TableOptions& options, Long columns) {
    return "COLSPAN=\"" + FromLong(SpanOf(options, columns)) + "\"";
}

/// Shares the columns between the two sides; the longer text grows first.
Long LeftSpan(Long columns, bool rightLonger) {
    const Long more = columns > 2 ? columns - 2 : 0;
    return 1 + (rightLonger ? more / 2 : more - more / 2);
}

void FillRow(GridRow& row, const TableOptions& options, Long columns, const Text& left, const Text& right,
             const HeaderLinks::Format& format) {
    const auto put = [&](Long column, TextView text, Text tag) {
        if (GridCell* cell = row.Find(column)) {
            cell->text = LinkText(options, text, format.size);
            cell->saved = cell->tag = std::move(tag);
        }
    };
    if (format.centreAll) {
        put(1, left + Text(Gap) + right, "ALIGN=\"CENTER\" " + Span(options, columns));
    } else if (!left.empty() && !right.empty() && columns == 1) {
        put(1, left + Text(Gap) + right, {});
    } else if (!left.empty() && !right.empty()) {
        const Long leftSpan = LeftSpan(columns, right.size() > left.size());
        const Long rightSpan = columns > 2 ? columns - leftSpan : 1;
        put(1, left, Span(options, leftSpan));
        put(leftSpan + 1, right, "ALIGN=\"RIGHT\" " + Span(options, rightSpan));
    } else if (!left.empty()) {
        put(1, left, Span(options, columns));
    } else if (!right.empty()) {
        put(1, right, "ALIGN=\"RIGHT\" " + Span(options, columns));
    } else {
        put(1, "&nbsp;", Span(options, columns));
    }
}

std::size_t BytesOf(const GridRow& row) {
    std::size_t bytes = static_cast<std::size_t>(row.Width()) * sizeof(GridCell);
    for (Long column = 1; column <= row.Width(); ++column) bytes += row.Find(column)->text.size();
    return bytes;
}

} // namespace

void AddHeaderLinkRows(GridRows& rows, const TableScope& scope, const HeaderLinkPlace& place) {
    const auto& links = scope.links.links;
    if (links.Empty() || !scope.links.show[static_cast<std::size_t>(place.position - 1)]) return;
    const Long mask = 1 << (place.position - 1);
    Long lowest = MaxLinkRows;
    for (const HeaderLinks::Link& link : links) lowest = std::min(lowest, link.row);
    const Long highest = scope.links.MaxRow();

    const bool reversed = place.position > 2;
    const long long last = std::min<long long>(highest, static_cast<long long>(lowest) + MaxLinkRows - 1);
    std::size_t bytes = 0;
    for (long long number = lowest; number <= last && bytes < MaxLinkBytes; ++number) {
        // At the foot the first row stands nearest the table, too.
        const auto linkRow = static_cast<Long>(reversed ? highest + 1LL - number : number);
        const HeaderLinks::Format format = FormatOf(scope, linkRow, mask);
        Text left, right;
        for (const HeaderLinks::Link& link : links) {
            if (link.row != linkRow || (link.positions & mask) == 0) continue;
            Text& side = link.right ? right : left;
            if (!side.empty()) side += Gap;
            side += LinkHTML(scope, place, link, format);
        }
        if (left.empty() && right.empty() && highest <= 1) return;
        GridRow& row = rows.emplace_back(std::max(place.columns, 2));
        FillRow(row, scope.options, place.columns, left, right, format);
        bytes += BytesOf(row);
    }
}

} // namespace ostrel::tablepages

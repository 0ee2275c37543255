#include "tables/PageHeads.h"

#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tables {

PageHeads::PageHeads(const InputTable& table, OstrelWebHelp& web, Text recordStyle)
    : table_(table), web_(web), recordStyle_(std::move(recordStyle)) {
    auto& event = web.events.PageCreateTableTitle;
    const auto token = event.Listen([this](Text& type, Text& title, Text&, Text& sortBy, Flag& up, Long&) {
        if (type == "Separate")
            web_.HelpMeta(recordStyle_);
        else
            TellOrder(type, title, sortBy, up);
    });
    endListening_ = [&event, token] { event.End(token); };
}

PageHeads::~PageHeads() { endListening_(); }

Long PageHeads::NextColumn(TextView sortBy, bool up) {
    const Long last = std::min(table_.Columns(), ColumnReach);
    for (Long column = std::max<Long>(column_ + (up ? 1 : 0), 1); column <= last; ++column)
        if (table_.names[static_cast<std::size_t>(column - 1)] == sortBy &&
            web_.PageTableColumnSort(column) && !web_.PageTableColumnHide(column))
            return column_ = column;
    return 0;
}

void PageHeads::TellOrder(TextView type, Text& title, TextView sortBy, bool up) {
    Text order;
    if (type == "Sort") {
        const Long column = NextColumn(sortBy, up);
        if (column == 0) return;
        const Text name = ReplaceAll(table_.nameHtml[static_cast<std::size_t>(column - 1)], "<BR>", " ");
        order = (TrimBlanks(ReplaceAll(name, "&nbsp;", " ")).empty() ? "column " + FromLong(column) : name) +
                ", " + OrderInWords(web_.PageTableColumnOrder(column), up);
    } else if (!up) {
        order = "record number, last record first";
    } else {
        return;
    }
    // The dash separates the parts in the window's title, which is one line.
    title += "<SPAN CLASS=\"dash\"> \x96 </SPAN><SPAN CLASS=\"order\">sorted by " + order + "</SPAN>";
}

Text OrderInWords(TextView order, bool up) {
    switch (order.empty() ? ' ' : static_cast<char>(UpperByte(order[0]))) {
    case 'N':
        return up ? "lowest first" : "highest first";
    case 'D':
    case 'T':
        return up ? "earliest first" : "latest first";
    case 'S':
        return up ? "A to Z" : "Z to A";
    default:
        return up ? "upward" : "downward";
    }
}

} // namespace ostrel::tables

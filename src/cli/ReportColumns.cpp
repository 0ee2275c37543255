#include "cli/ReportColumns.h"

#include <algorithm>
#include <set>

#include "cli/Usage.h"
#include "tables/CellText.h"
#include "tables/InputError.h"
#include "tables/ReportPages.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::cli {

void ColumnFinder::Fail(std::string_view option, const std::string& sentence) const {
    throw tables::InputError(table_.place + ": " + std::string(option) + ": " + sentence);
}

Long ColumnFinder::Lookup(std::string_view word, bool& ambiguous) const {
    const Text name = tables::PlainArgument(word);
    Long hit = 0;
    for (const bool exact : {true, false}) {
        for (std::size_t i = 0; i < table_.names.size(); ++i) {
            if (exact ? table_.names[i] != name : !EqualText(table_.names[i], name)) continue;
            ambiguous = hit != 0;
            if (ambiguous) return 0;
            hit = static_cast<Long>(i) + 1;
        }
        if (hit != 0) return hit;
    }
    const auto number = ToLong(name);
    return number && *number >= 1 && *number <= table_.Columns() ? *number : 0;
}

Long ColumnFinder::Find(std::string_view option, std::string_view word) const {
    bool ambiguous = false;
    const Long column = Lookup(word, ambiguous);
    if (ambiguous)
        Fail(option, "several columns are called [" + std::string(word) + "]; give the number of one.");
    if (column == 0) {
        std::string known;
        for (std::size_t i = 0; i < table_.names.size() && i < 30; ++i)
            known += (i ? ", " : "") + ToUtf8(table_.names[i]);
        if (table_.names.size() > 30) known += ", ...";
        Fail(option, "there is no column [" + std::string(word) + "]; there is " + known + ".");
    }
    if (column > tables::ColumnReach)
        Fail(option, "[" + std::string(word) + "] is column " + std::to_string(column) +
                         ", and options reach the first " + std::to_string(tables::ColumnReach) + " only.");
    return column;
}

std::pair<Long, std::string> ColumnFinder::Split(std::string_view option, std::string_view word) const {
    const std::size_t first = word.find('=');
    if (first == std::string_view::npos)
        throw UsageError(std::string(option) + " " + std::string(word) + ": it must be COLUMN=VALUE.");
    for (std::size_t at = first; at != std::string_view::npos; at = word.find('=', at + 1)) {
        bool ambiguous = false;
        if (Lookup(word.substr(0, at), ambiguous) != 0)
            return {Find(option, word.substr(0, at)), std::string(word.substr(at + 1))};
    }
    return {Find(option, word.substr(0, first)), std::string(word.substr(first + 1))};
}

namespace {

/// Returns the text encoded for use between the double quotes of an attribute.
Text AttributeText(const std::string& word) { return tables::HtmlArgument(word); }

void ApplySorts(const ReportOptions& options, const ColumnFinder& find, const tables::InputTable& table,
                OstrelWebHelp& web) {
    for (const std::string& word : options.sort) {
        const Long column = find.Find("--sort", word);
        if (!options.noSort) web.PageTableColumnSort(column, true);
    }
    if (!options.noSort && options.sort.empty())
        for (Long column = 1; column <= std::min(table.Columns(), tables::ColumnReach); ++column)
            web.PageTableColumnSort(column, true);
    web.PageTableRecordNumberSort(!options.noSort && !options.noRecordNumbers);
}

void ApplyTypes(const ReportOptions& options, const ColumnFinder& find, tables::InputTable& table,
                OstrelWebHelp& web) {
    for (const std::string& word : options.type) {
        const auto [column, name] = find.Split("--type", word);
        const auto type = tables::ColumnTypeOfName(name);
        if (!type) throw UsageError("--type " + word + ": the type must be text, number, date or time.");
        table.types[static_cast<std::size_t>(column - 1)] = *type;
    }
    for (Long column = 1; column <= std::min(table.Columns(), tables::ColumnReach); ++column)
        web.PageTableColumnOrder(column,
                                 tables::SortOrderOf(table.types[static_cast<std::size_t>(column - 1)]));
}

void ApplyTotals(const ReportOptions& options, const ColumnFinder& find, OstrelWebHelp& web) {
    for (const std::string& word : options.total) web.PageTableColumnTotal(find.Find("--total", word), true);
    for (const std::string& word : options.totalTime)
        web.PageTableColumnTotalTime(find.Find("--total-time", word), true);
    web.PageTableTotal(!options.total.empty() || !options.totalTime.empty());

    web.PageTableTotalFormat("auto");
    for (const std::string& word : options.totalFormat) {
        if (word.find('=') == std::string::npos) {
            web.PageTableTotalFormat(tables::PlainArgument(word));
            continue;
        }
        const auto [column, format] = find.Split("--total-format", word);
        web.PageTableColumnTotalFormat(column, tables::PlainArgument(format));
    }
    for (const std::string& word : options.breaks) web.PageTableColumnBreak(find.Find("--break", word), true);
    web.PageTableTotalBreak(!options.breaks.empty());
    web.PageTableTotalSort(options.subTotals);
}

} // namespace

void ApplyColumnOptions(const ReportOptions& options, tables::InputTable& table, OstrelWebHelp& web) {
    const ColumnFinder find(table);
    for (const std::string& word : options.hide) web.PageTableColumnHide(find.Find("--hide", word), true);
    ApplySorts(options, find, table, web);
    ApplyTypes(options, find, table, web);
    ApplyTotals(options, find, web);
    for (const std::string& word : options.link) {
        const auto [column, prefix] = find.Split("--link", word);
        web.PageTableColumnLink(column, AttributeText(prefix));
    }
    for (const std::string& word : options.linkTip) {
        const auto [column, text] = find.Split("--link-tip", word);
        web.PageTableColumnLinkTT(column, AttributeText(text));
    }
    for (const std::string& word : options.width) {
        const auto [column, width] = find.Split("--width", word);
        web.PageTableColumnWidth(column, AttributeText(width));
    }
    for (const std::string& word : options.columnColour) {
        const auto [column, colour] = find.Split("--column-colour", word);
        web.PageTableColumnColor(column, AttributeText(colour));
    }
    for (const std::string& word : options.expose)
        web.PageTableColumnExpose(find.Find("--expose", word), true);
    if (!options.recordColumn.empty())
        web.PageTableColumnRecord(find.Find("--record-column", options.recordColumn));
    for (const std::string& word : options.subRecord)
        web.PageTableColumnSubRecord(find.Find("--sub-record", word), true);
    if (!options.recordTitle.empty()) {
        const Long column = find.Find("--record-title", options.recordTitle);
        web.PageTableSeparateHeaderField(table.nameHtml[static_cast<std::size_t>(column - 1)]);
    }
}

void CheckShownColumns(const ReportOptions& options, const tables::InputTable& table,
                       const OstrelWebHelp& web) {
    if (tables::ShownColumns(table, web) == 0)
        throw tables::InputError(table.place + ": every column is hidden.");
    if (options.recordTitle.empty() || options.recordsAll) return;
    const Long column = ColumnFinder(table).Find("--record-title", options.recordTitle);
    if (web.PageTableColumnHide(column))
        throw tables::InputError(table.place + ": --record-title: the column [" + options.recordTitle +
                                 "] is hidden; --records-all shows it on the pages of the records.");
}

void CheckPageNames(const tables::InputTable& table, const OstrelWebHelp& web) {
    if (!web.PageTableOrderUseNames()) return;
    std::set<Text> pages;
    for (Long column = 1; column <= std::min(table.Columns(), tables::ColumnReach); ++column) {
        if (!web.PageTableColumnSort(column) || web.PageTableColumnHide(column)) continue;
        const Text& name = table.names[static_cast<std::size_t>(column - 1)];
        const auto bad = std::find_if(name.begin(), name.end(), [](char c) {
            return static_cast<unsigned char>(c) < 32 ||
                   std::string_view("/\\:*?\"<>|#%&").find(c) != std::string_view::npos;
        });
        if (bad != name.end())
            throw tables::InputError(table.place + ": the column name [" + ToUtf8(name) +
                                     "] can't be part of a page's name.");
        Text word = ReplaceAll(ReplaceAll(name, "_", ""), " ", "");
        if (word.empty()) word = FromLong(column);
        if (!pages.insert(word).second)
            throw tables::InputError(table.place + ": two columns would share the pages of the name [" +
                                     ToUtf8(word) + "].");
    }
}

} // namespace ostrel::cli

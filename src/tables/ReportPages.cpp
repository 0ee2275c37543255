#include "tables/ReportPages.h"

#include "control/OstrelWebHelp.h"
#include "tables/CountText.h"

namespace ostrel::tables {

Long ShownColumns(const InputTable& table, const OstrelWebHelp& web) {
    Long shown = 0;
    for (Long column = 1; column <= table.Columns(); ++column)
        if (!web.PageTableColumnHide(column)) ++shown;
    return shown;
}

Text DefaultSubTitle(const InputTable& table, const Text& csv, OstrelWebHelp& web) {
    const Text counts = Counted(static_cast<std::size_t>(table.rows), "row") + ", " +
                        Counted(static_cast<std::size_t>(ShownColumns(table, web)), "column");
    return csv.empty() ? counts : counts + " &middot; " + web.CreateLink(csv, csv, false, false, false);
}

Array<Text> ReportFileNames(const InputTable& table, const Text& mainPage, OstrelWebHelp& web) {
    const Array<Text> names{std::vector<Text>(table.nameHtml)};
    const CellTable cells(table.cells.Cells(), table.rows, table.Columns());
    return web.PageCreateTableFiles(mainPage, names, cells);
}

bool MakeReport(const InputTable& table, const std::vector<ColumnType>& types, const Text& mainPage,
                const Text& title, OstrelWebHelp& web, Text& message) {
    const Array<Text> names{std::vector<Text>(table.nameHtml)};
    const Array<Text> plainNames{std::vector<Text>(table.names)};
    Array<Flag> right;
    for (const ColumnType type : types) right.Append(type != ColumnType::Text);
    const CellTable cells(table.cells.Cells(), table.rows, table.Columns(), &plainNames);
    return web.PageCreateTableFrom(mainPage, title, names, right, cells, message);
}

} // namespace ostrel::tables

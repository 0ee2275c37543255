#include "desk/DeskPages.h"

#include <algorithm>

#include "platform/native/NativePaths.h"
#include "tables/CellText.h"
#include "tables/ReportLook.h"
#include "text/NumberText.h"

namespace ostrel::desk {

namespace {

constexpr Long PreviewRows = 20;

constexpr const char* WelcomeStyle =
    "<STYLE>\r\n"
    "body { margin: 12vh auto 2em; max-width: 34em; padding: 0 2em; color: #1F2933; "
    "font: 15px/1.6 \"Segoe UI\", \"Helvetica Neue\", Helvetica, Arial, \"Liberation Sans\", sans-serif; }\r\n"
    "li { margin: 0.5em 0; }\r\n"
    "</STYLE>";

} // namespace

Text DeskPages::Path(const QString& name) const {
    if (!directory_.isValid()) return {};
    return NativePaths::FromSystem(directory_.filePath(name).toStdString()).value_or(Text());
}

Text DeskPages::Welcome(OstrelWebHelp& web) {
    const Text path = Path("welcome.htm");
    web.PageReset();
    web.PageMeta(WelcomeStyle);
    web.PageFontSizeSet(owhFontTitle, "6");
    web.PageFontBoldSet(owhFontTitle, true);
    web.PageHeader("Reports that can be sorted, walked and passed on, made of your own data.");
    const Array<Text> steps{web.CreateStringBold("Open a CSV file or a SQLite database") +
                                ": drop it on this window, or choose File, Open.",
                            web.CreateStringBold("Choose") +
                                " the columns, their order and their totals at the left.",
                            web.CreateStringBold("Make the report") +
                                ", and click its headers and record numbers to walk through it."};
    Text error;
    const bool made = web.PageCreateList(
        path, "Welcome", steps.Count(), "",
        web.CreateParagraph("A directory of help pages can be opened and dropped as well.", false), steps,
        error, true, false);
    return made ? path : Text();
}

Text DeskPages::Preview(OstrelWebHelp& web, const TableFile& file) {
    const tables::InputTable& table = *file.table;
    const Long rows = std::min(table.rows, PreviewRows);
    const Text path = Path("preview.htm");
    web.PageReset();
    tables::ApplyLook(tables::Look{}, web);
    web.PageSubTitle(rows < table.rows ? "The first " + FromLong(rows) + " rows of the file as it was read"
                                       : Text("The file as it was read"));
    const Array<Text> names{std::vector<Text>(table.nameHtml)};
    Array<Flag> right;
    for (const tables::ColumnType kind : table.types) right.Append(kind != tables::ColumnType::Text);
    const CellTable cells(table.cells.Cells(), rows, table.Columns());
    Text error;
    const bool made = web.PageCreateTableFrom(path, tables::HtmlArgument(file.Stem().toStdString()), names,
                                              right, cells, error);
    web.PageInitialise();
    return made ? path : Text();
}

} // namespace ostrel::desk

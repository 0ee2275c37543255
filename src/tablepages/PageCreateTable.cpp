#include "tablepages/PageCreateTable.h"

#include "html/Elements.h"
#include "html/PageProgress.h"
#include "html/PageSave.h"
#include "services/CsvText.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "tablepages/HeaderTexts.h"
#include "tablepages/PageNames.h"
#include "tablepages/SeparatePages.h"
#include "tablepages/SortPages.h"
#include "tablepages/TableRun.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

bool Check(ReportFrame& frame, Text& error) {
    const TableInput& input = frame.input;
    if (!input.filePath.empty() &&
        !html::PageFilePath(frame.scope.pages, input.filePath, frame.filePath, error))
        return false;
    if (input.rows <= 0) {
        error = "No Rows in Table";
        return false;
    }
    if (input.columns <= 0) {
        error = "No Columns in Table";
        return false;
    }
    return true;
}

/// The columns of the CSV file.
std::vector<Long> CsvColumns(ReportFrame& frame) {
    const bool shownOnly = frame.options.PageTableExcelShownOnly;
    if (shownOnly) frame.columns.Settle(frame.input, frame.options, frame.rules);
    std::vector<Long> columns;
    for (Long column = 1; column <= frame.input.columns; ++column)
        if (!shownOnly || frame.columns.Shows(column)) columns.push_back(column);
    return columns;
}

bool WriteCsv(TableRun& run, Text& error) {
    ReportFrame& frame = run.frame;
    const html::PageScope& scope = frame.scope.pages;
    const TableInput& input = frame.input;
    html::TellProgress(scope, "Saving to Excel", 0);
    frame.csvPath = CsvPath(frame.filePath);
    const std::vector<Long> columns = CsvColumns(frame);
    const auto fields = static_cast<Long>(columns.size());
    if (fields == 0) {
        error = "No Data in Table";
        return false;
    }
    Array<Text> names(fields);
    for (Long field = 1; field <= fields; ++field)
        names.Put(field, PlainName(frame, columns[static_cast<std::size_t>(field - 1)]));
    Text plain;
    const auto cell = [&](Long row, Long field) -> TextView {
        const Long column = columns[static_cast<std::size_t>(field - 1)];
        if (input.cells.HasPlain()) return input.cells.Plain(row, column);
        services::StripTagsInto(input.cells.Html(row, column), plain);
        return plain;
    };
    Text writeError;
    const services::CsvContent content{names, input.rows, fields, cell};
    if (services::WriteCsvFile(scope.context, frame.csvPath, content, false, run.table.Room(), writeError))
        return true;
    error = writeError;
    return false;
}

/// The anchor at one end of the page. Only a name that says False means none, so that an empty name gives an
/// anchor without a name.
Text EdgeAnchor(const Text& name) {
    const auto flag = ToFlag(name);
    return flag && !*flag ? Text() : Text(LineGap) + html::CreateAnchor(name);
}

bool MakePages(TableRun& run, Text& error) {
    ReportFrame& frame = run.frame;
    const TableOptions& options = frame.options;
    const html::PageScope& scope = run.Scope();
    if (options.PageTableAddExcel && !WriteCsv(run, error)) return false;

    frame.footText = EdgeAnchor(scope.settings.PageAnchorBottom);
    frame.headText = EdgeAnchor(scope.settings.PageAnchorTop);
    run.createAll = options.PageTableCreateAll;
    html::TellProgress(scope, "Starting", 0);

    const bool downPage = !frame.filePath.empty() && HasDownPage(options);
    if (downPage && !MakeMainPage(run, true, error)) return false;
    if (!MakeMainPage(run, false, error)) return false;
    if (frame.filePath.empty()) return true;
    if (!MakeSortPages(run, error)) return false;
    if (options.PageTableAddSeparate && !MakeSeparatePages(run, error)) return false;

    html::TellProgress(scope, "Finished", 0);
    return true;
}

} // namespace

bool PageCreateTable(const TableScope& scope, const TableInput& input, Text& error) {
    scope.pages.context.run.StopPressed = false;
    TableRun run(scope, input);
    if (!Check(run.frame, error)) return false;
    scope.separate = {};
    const bool made = MakePages(run, error);
    scope.separate.fields = 0;
    return made;
}

} // namespace ostrel::tablepages

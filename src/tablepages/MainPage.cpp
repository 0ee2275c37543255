#include "html/FontType.h"
#include "html/PageDraft.h"
#include "html/PageProgress.h"
#include "html/PageSave.h"
#include "html/PageText.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "tablepages/HeaderLinkRows.h"
#include "tablepages/PageNames.h"
#include "tablepages/SpaceRows.h"
#include "tablepages/TableRun.h"
#include "tablepages/TableTypes.h"
#include "tablepages/TitleBlock.h"
#include "text/CodePage.h"

namespace ostrel::tablepages {

namespace {

constexpr Long RecordsBetweenEvents = 100;

/// What a page of the whole table is built with.
class MainPage {
public:
    MainPage(TableRun& run, bool reversed)
        : run_(run), frame_(run.frame), main_(run.main.emplace(run.frame, run.totals, reversed)),
          reversed_(reversed) {}

    bool Fill(Text& error);
    void Write();

private:
    void AddHeader(GridRows& rows, bool repeated);
    void AddLinks(GridRows& rows, Long position);
    bool AddRecords(Text& error);
    void AddToTotals(Long source);
    void AddFoot();

    TableRun& run_;
    const ReportFrame& frame_;
    MainTable& main_;
    bool reversed_;
};

void MainPage::AddLinks(GridRows& rows, Long position) {
    AddHeaderLinkRows(rows, frame_.scope, {position, frame_.columns.linkColumns, frame_.csvPath, false});
}

void MainPage::AddHeader(GridRows& rows, bool repeated) {
    const Text recordPath = reversed_ ? frame_.filePath : DownPagePath(frame_.filePath);
    const Text anchor = repeated ? frame_.scope.pages.settings.PageAnchorBottom : Text();
    const std::size_t row = AddHeaderRows(
        rows, frame_, {recordPath, anchor, reversed_ ? TextView(frame_.options.PageTableOrderDownMark) : ""},
        repeated ? &main_.repeatedHeader : &main_.header);
    if (!repeated) main_.headerRow = row;
}

bool MainPage::Fill(Text& error) {
    if (Interrupted(frame_, error)) return false;
    html::TellProgress(run_.Scope(), "Formatting", 0);
    if (frame_.columns.header) {
        AddLinks(main_.top, 1);
        AddHeader(main_.top, false);
        AddLinks(main_.top, 2);
        if (frame_.options.PageTableHeaderSpace)
            AddSpaceRows(main_.top, frame_.options, frame_.columns.Width(), owhSpaceSpace);
    }
    if (Interrupted(frame_, error) || !AddRecords(error) || Interrupted(frame_, error)) return false;
    AddFoot();
    return !Interrupted(frame_, error);
}

void MainPage::AddToTotals(Long source) {
    for (Totals::Column& column : run_.totals.Columns()) {
        const TextView value = frame_.input.cells.Html(source, column.source);
        if (column.time)
            Totals::AddSeconds(column, services::CellTimeSeconds(value), true, false);
        else
            Totals::AddNumber(column, services::CellNumericValue(value), true, false);
    }
}

bool MainPage::AddRecords(Text& error) {
    const bool sums = frame_.options.PageTableTotal && !run_.totals.Columns().empty();
    const bool tests = run_.Scope().draft.TestHyperlink;
    Long records = 0;
    for (Long step = 1; step <= frame_.input.rows; ++step) {
        const Long source = main_.grid.SourceOf(step);
        if (source == 0) continue;
        const bool starts = main_.grid.Add(source);
        records += starts ? 1 : 0;
        if (tests) run_.painter->Texts().TestLinks(source, starts);
        if (sums) AddToTotals(source);
        if (main_.grid.Breaks() && main_.grid.BreakColumn(source) > 0)
            main_.AddBreak(run_.totals.Show(frame_, TotalKind::Break), source);
        if (!starts || records % RecordsBetweenEvents != 0) continue;
        html::TellProgress(run_.Scope(), "Formatting", records);
        if (Interrupted(frame_, error)) return false;
    }
    return true;
}

void MainPage::AddFoot() {
    if (run_.totals.Any() && frame_.options.PageTableTotal) {
        const TotalBlock block(frame_, run_.totals, TotalKind::Grand);
        const Long last = reversed_ ? 1 : frame_.input.rows;
        const Text recordTag(main_.grid.RecordTag(main_.grid.Count(), last));
        main_.foot = block.Above();
        main_.foot.push_back(block.Row(run_.totals.Show(frame_, TotalKind::Grand), &recordTag));
        for (GridRow& row : block.Below()) main_.foot.push_back(std::move(row));
    }
    frame_.context.GiveWay();
    if (!frame_.columns.header || !frame_.options.PageTableHeaderRepeat) return;
    if (frame_.options.PageTableHeaderSpace)
        AddSpaceRows(main_.foot, frame_.options, frame_.columns.Width(), owhSpaceSpace);
    AddLinks(main_.foot, 3);
    AddHeader(main_.foot, true);
    AddLinks(main_.foot, 4);
}

void MainPage::Write() {
    const Long rows = main_.grid.Count();
    const bool empty = rows == 0 && main_.top.empty() && main_.foot.empty();
    run_.table.Build(run_.Scope(), frame_.options, frame_.columns.Width(), empty,
                     [&](html::TableWriter& table) {
                         RecordPainter& painter = *run_.painter;
                         painter.PaintTop(table, main_.top);
                         Long record = 0;
                         for (Long place = 0; place < rows; ++place) {
                             if (main_.IsText(place)) {
                                 painter.Paint(table, main_.RowAt(place));
                                 continue;
                             }
                             if (main_.grid.At(place).sub <= 1) ++record;
                             painter.Paint(table, place, place, record);
                         }
                         painter.Paint(table, main_.foot);
                     });
}

} // namespace

bool MakeMainPage(TableRun& run, bool reversed, Text& error) {
    ReportFrame& frame = run.frame;
    const html::PageScope& scope = run.Scope();
    const Text path = reversed ? DownPagePath(frame.filePath) : frame.filePath;
    scope.settings.CurrentCreatePage = path;
    html::PageInitialise(scope);
    frame.align = AlignTags(frame.options);
    SetTitleBlock(scope, {"Main", frame.input.title, {}, "Record Number", !reversed, frame.headText, 0});

    if (!frame.columns.Settle(frame.input, frame.options, frame.rules)) {
        error = "No Data in Table";
        return false;
    }
    run.totals.Settle(frame);
    MainPage page(run, reversed);
    run.painter.emplace(frame, *run.main);
    if (!page.Fill(error)) return false;
    html::TellProgress(scope, "Creating Table", 0);
    page.Write();
    scope.draft.HelpPart3 =
        Rope(html::PageTextBlock(scope, scope.settings.PageFooter, owhFontFooter) + frame.footText);
    if (frame.filePath.empty()) return true;

    html::TellProgress(scope, "Saving Page", 0);
    const html::PageSaved saved = html::SavePage(scope, path);
    if (!saved.built) {
        error = saved.error;
        return false;
    }
    if (saved.newFile) run.createAll = true;
    html::TellPageCreated(scope, path, saved);
    return true;
}

} // namespace ostrel::tablepages

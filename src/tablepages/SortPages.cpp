#include "tablepages/SortPages.h"

#include <utility>

#include "html/Elements.h"
#include "html/PageProgress.h"
#include "html/PageSave.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "tablepages/HeaderLinkRows.h"
#include "tablepages/HeaderTexts.h"
#include "tablepages/PageNames.h"
#include "tablepages/SortOrder.h"
#include "tablepages/SpaceRows.h"
#include "tablepages/TableTypes.h"
#include "tablepages/TitleBlock.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

constexpr Long LastColumn = 100;

/// The two pages sorted on one column.
class SortPages {
public:
    SortPages(TableRun& run, const SortColumn& column)
        : run_(run), frame_(run.frame), main_(*run.main), painter_(*run.painter), column_(column),
          order_(run, column), subTotal_(frame_, run.totals, TotalKind::Sort),
          name_(PlainName(frame_, column.source)),
          exposes_(frame_.options.PageTableColumnExpose.Get(column.source)) {}

    bool Make(bool up, Text& error);

private:
    void PutRecordHeader(bool up);
    void PutHeader(GridRow& row, const HeaderVariants& variants, bool up, TextView anchor) const;
    void TakeTop();

    void AddUp();
    void AddToTotals(Long place, Long first);
    void EndTotals();
    void AddFoot(bool up);
    void Write();
    void WriteRows(html::TableWriter& table);

    /// The value of the sort column in a row.
    TextView GroupName(Long place, Long first) const;
    void Expose();
    CellTexts::Pieces CellText(Long place, Long first, Long gridColumn);

    TableRun& run_;
    const ReportFrame& frame_;
    MainTable& main_;
    RecordPainter& painter_;
    const SortColumn& column_;
    SortOrder order_;
    TotalBlock subTotal_;
    Text name_;
    bool exposes_;
    GridRows top_, foot_;
    /// The sub-totals of the page in hand: in front of which position each stands, and its texts.
    std::vector<Long> groupStarts_;
    std::vector<Text> groupTexts_;
    /// The value that the rows in front of each of them share, as HTML, and that of the last rows.
    std::vector<TextView> groupNames_;
    TextView lastName_;
};

// The header of the record numbers leads back to the main page. It is put into the main table at either
// page, and reaches a page by the rows that its column's first page takes over.
void SortPages::PutRecordHeader(bool up) {
    if (!main_.headerRow || !frame_.columns.recordNumbers) return;
    GridCell& cell = *main_.top[*main_.headerRow].Find(1);
    const TableOptions& options = frame_.options;
    const Text text = RecordHeader(frame_, frame_.filePath,
                                   up ? options.PageTableOrderDownTT : options.PageTableOrderUpTT, {});
    frame_.rules.SetCell(text, cell.text, cell.tag,
                         {true, frame_.align.headerAlign, frame_.align.headerVAlign, false});
}

/// A sorted page links to the one sorted the other way.
void SortPages::PutHeader(GridRow& row, const HeaderVariants& variants, bool up, TextView anchor) const {
    const Text* text = HeaderVariants::Find(up ? variants.down : variants.up, column_.grid);
    GridCell* const cell = row.Find(column_.grid);
    if (!cell || !text) return;
    cell->text = *text;
    const TextView mark = up ? frame_.options.PageTableOrderUpMark : frame_.options.PageTableOrderDownMark;
    if (mark.empty()) return;
    Text tag = cell->tag;
    frame_.rules.SetCell(HeaderText(frame_, column_.source, frame_.filePath, !up, anchor, mark), cell->text,
                         tag, {});
}

void SortPages::TakeTop() {
    top_ = main_.top;
    order_.Collect();
}

/// Puts an anchor at the first row of each value.
void SortPages::Expose() {
    Text last;
    for (Long position = 0; position < order_.Count(); ++position) {
        const Long place = order_.PlaceAt(position);
        if (place < 0) continue;
        const Text name = html::CreateAnchorName(CellTexts::Joined(painter_.CellText(place, column_.grid)));
        if (EqualText(name, last)) continue;
        last = name;
        painter_.Expose(column_.grid, place, html::CreateAnchor(frame_.Name(column_.source) + "." + name));
    }
}

CellTexts::Pieces SortPages::CellText(Long place, Long first, Long gridColumn) {
    const Long source = frame_.columns.shown[static_cast<std::size_t>(gridColumn - 1)];
    return painter_.CellText(frame_.options.PageTableColumnSubRecord.Get(source) ? place : first, gridColumn);
}

TextView SortPages::GroupName(Long place, Long first) const {
    const Long source = column_.source;
    const bool ofRow = frame_.options.PageTableColumnSubRecord.Get(source);
    return frame_.input.cells.Html(main_.grid.At(ofRow ? place : first).source, source);
}

void SortPages::AddToTotals(Long place, Long first) {
    const bool page = !column_.ofRow || main_.grid.At(place).sub <= 1;
    for (Totals::Column& total : run_.totals.Columns()) {
        const bool ofRow = frame_.options.PageTableColumnSubRecord.Get(total.source);
        const TextView plain = painter_.Texts().Plain(CellText(place, first, total.grid));
        if (!total.time)
            Totals::AddNumber(total, LeadingNumber(plain), page || ofRow, true);
        else if (plain.find_first_of("<&") == NotFound)
            Totals::AddSeconds(total, services::CellTimeSeconds(plain), page || ofRow, true);
    }
}

/// Walks the rows for the sums and for the places of the sub-totals.
void SortPages::AddUp() {
    run_.totals.Clear(true);
    groupStarts_.clear();
    groupTexts_.clear();
    groupNames_.clear();
    lastName_ = {};
    const bool sums = (frame_.options.PageTableTotal || column_.subTotals) && !run_.totals.Columns().empty();
    if (!sums && !column_.subTotals) return;

    Text group;
    Long place = -1;
    for (Long position = 0; position < order_.Count(); ++position) {
        if (const Long next = order_.PlaceAt(position); next >= 0) place = next;
        if (place < 0) continue;
        const Long first = order_.FirstOf(place);
        if (column_.subTotals) {
            const TextView value = painter_.Texts().Plain(CellText(place, first, column_.grid));
            if (position == 0) {
                group = value;
                lastName_ = GroupName(place, first);
            } else if (!EqualText(value, group)) {
                group = value;
                groupStarts_.push_back(position);
                groupNames_.push_back(std::exchange(lastName_, GroupName(place, first)));
                for (Text& text : run_.totals.Show(frame_, TotalKind::Sort))
                    groupTexts_.push_back(std::move(text));
                run_.totals.Clear(false);
            }
        }
        if (!sums) continue;
        AddToTotals(place, first);
        if (column_.ofRow) continue;
        const Long rows = main_.grid.At(place).count;
        for (Long further = 1; further < rows; ++further) AddToTotals(place + further, place + further);
    }
}

void SortPages::EndTotals() {
    if (!run_.totals.Any()) return;
    const bool grand = frame_.options.PageTableTotal;
    const bool repeats = frame_.columns.header && frame_.options.PageTableHeaderRepeat;
    Text colour;
    if (column_.subTotals) {
        GridRows rows = subTotal_.Above();
        rows.push_back(subTotal_.Row(run_.totals.Show(frame_, TotalKind::Sort), nullptr, lastName_));
        colour = subTotal_.Colour();
        // Where nothing follows, the rows of the page have been counted before the last sub-total.
        if (grand || repeats) foot_ = std::move(rows);
    }
    if (!grand) return;
    const TotalBlock block(frame_, run_.totals, TotalKind::Grand);
    for (GridRow& row : block.Above(colour)) foot_.push_back(std::move(row));
    foot_.push_back(block.Row(run_.totals.Show(frame_, TotalKind::Grand), nullptr));
    for (GridRow& row : block.Below()) foot_.push_back(std::move(row));
}

void SortPages::AddFoot(bool up) {
    foot_.clear();
    EndTotals();
    if (!frame_.columns.header || !frame_.options.PageTableHeaderRepeat) return;
    if (frame_.options.PageTableHeaderSpace)
        AddSpaceRows(foot_, frame_.options, frame_.columns.Width(), owhSpaceSpace);
    const auto links = [&](Long position) {
        AddHeaderLinkRows(foot_, frame_.scope, {position, frame_.columns.Width(), frame_.csvPath, false});
    };
    links(3);
    const std::size_t row =
        AddHeaderRows(foot_, frame_,
                      {DownPagePath(frame_.filePath), frame_.scope.pages.settings.PageAnchorBottom}, nullptr);
    PutHeader(foot_[row], main_.repeatedHeader, up, frame_.scope.pages.settings.PageAnchorBottom);
    links(4);
}

void SortPages::WriteRows(html::TableWriter& table) {
    const GridRows above = subTotal_.Above(), below = subTotal_.Below();
    const std::size_t totals = run_.totals.Columns().size();
    std::size_t group = 0;
    Long place = -1;
    for (Long position = 0; position < order_.Count(); ++position) {
        order_.PrefetchAround(position);
        if (group < groupStarts_.size() && groupStarts_[group] == position) {
            painter_.Paint(table, above);
            painter_.Paint(table, subTotal_.Row(std::span(groupTexts_).subspan(group * totals, totals),
                                                nullptr, groupNames_[group]));
            painter_.Paint(table, below);
            ++group;
        }
        const Long record = position + 1;
        if (const Long next = order_.PlaceAt(position); next >= 0) place = next;
        if (place < 0) {
            painter_.Paint(table, GridRow(frame_.columns.Width()));
            continue;
        }
        painter_.Paint(table, place, order_.FirstOf(place), record);
        if (column_.ofRow) continue;
        const Long rows = main_.grid.At(place).count;
        for (Long further = 1; further < rows; ++further)
            painter_.Paint(table, place + further, place + further, record);
    }
}

void SortPages::Write() {
    const bool empty = order_.Count() == 0 && top_.empty() && foot_.empty();
    run_.table.Build(run_.Scope(), frame_.options, frame_.columns.Width(), empty,
                     [&](html::TableWriter& table) {
                         painter_.PaintTop(table, top_);
                         WriteRows(table);
                         painter_.Paint(table, foot_);
                     });
}

bool SortPages::Make(bool up, Text& error) {
    const html::PageScope& scope = run_.Scope();
    PutRecordHeader(up);
    const Text file = SortFileName(frame_, frame_.filePath, column_.source, up ? "_U" : "_D", {});
    const Text path = services::BuildPath(services::FileDirectory(frame_.filePath), file);
    if (!run_.createAll && services::FileExists(*scope.context.platform.files, path)) {
        scope.context.events.StatusTextChange.Tell("Quick");
        html::TellPageKept(scope, path);
        return true;
    }
    html::TellProgress(scope, (up ? "Sorting Up - " : "Sorting Down - ") + name_, 0);
    scope.settings.CurrentCreatePage = path;
    SetTitleBlock(scope, {"Sort", frame_.input.title, {}, name_, up, frame_.headText, 0});
    // The down page counts on the up page to have read the keys.
    if (up)
        TakeTop();
    else if (!order_.Collected())
        top_.assign(main_.top.size(), GridRow(frame_.columns.Width()));
    if (Interrupted(frame_, error)) return false;
    if (main_.headerRow) PutHeader(top_[*main_.headerRow], main_.header, up, {});
    order_.Sort(up);
    if (Interrupted(frame_, error)) return false;

    if (exposes_ && up) Expose();
    html::TellProgress(scope, "Creating Page - " + name_, 0);
    AddUp();
    AddFoot(up);
    html::TellProgress(scope, "Creating Table - " + name_, 0);
    scope.context.GiveWay();
    Write();
    html::TellProgress(scope, "Saving Page - " + name_, 0);
    const html::PageSaved saved = html::SavePage(scope, path);
    if (!saved.built) {
        error = saved.error;
        return false;
    }
    painter_.EndExposing();
    scope.context.events.StatusTextChange.Tell("Slow");
    html::TellPageCreated(scope, path, saved);
    return true;
}

bool AnySort(const TableOptions& options) {
    for (Long column = 1; column <= LastColumn; ++column)
        if (options.PageTableColumnSort.Get(column)) return true;
    return false;
}

} // namespace

bool MakeSortPages(TableRun& run, Text& error) {
    const ReportFrame& frame = run.frame;
    if (!AnySort(frame.options)) return true;
    html::TellProgress(run.Scope(), "Setting up Sort", 0);
    for (std::size_t place = 0; place < frame.columns.shown.size(); ++place) {
        const Long source = frame.columns.shown[place];
        if (source > LastColumn) break;
        if (!frame.options.PageTableColumnSort.Get(source)) continue;
        const SortColumn column(frame.options, source, static_cast<Long>(place) + 1);
        SortPages pages(run, column);
        if (!pages.Make(true, error) || !pages.Make(false, error) || Interrupted(frame, error)) return false;
    }
    return true;
}

} // namespace ostrel::tablepages

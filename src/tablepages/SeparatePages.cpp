#include "tablepages/SeparatePages.h"

#include <algorithm>
#include <numeric>

#include "html/Elements.h"
#include "html/FontType.h"
#include "html/PageDraft.h"
#include "html/PageProgress.h"
#include "html/PageSave.h"
#include "html/PageText.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "services/Sorting.h"
#include "tablepages/RecordNames.h"
#include "tablepages/RecordPage.h"
#include "tablepages/TitleBlock.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

namespace {

constexpr Long RecordsBetweenEvents = 10;
constexpr TextView NavigationGap = "&nbsp; &nbsp;";

Text WithoutBlanks(Text text) {
    std::erase(text, ' ');
    return text;
}

class SeparatePages {
public:
    explicit SeparatePages(TableRun& run)
        : run_(run), frame_(run.frame), options_(run.frame.options), scope_(run.Scope()),
          paths_(run.frame.filePath), files_(services::FileName(run.frame.filePath)) {}

    bool Make(Text& error);

private:
    void Offer();
    Long HeaderField() const;
    void TakeRecord(Long record);
    html::PageSaved MakeVariant(Long record, RecordVariant::Number number);

    void Sort(const RecordVariant& variant);
    Text SubHeader(Long record) const;
    Text Navigation(Long record) const;

    TableRun& run_;
    const ReportFrame& frame_;
    const TableOptions& options_;
    const html::PageScope& scope_;
    RecordNames paths_, files_;

    // The table as the host left it.
    Array<Text> names_;
    Grid<Text> changed_;
    CellTable cells_;

    Long headerField_ = 0;
    Array<Text> values_; // of the record in hand
    Array<Long> pointers_;
    std::optional<RecordPage> table_;
};

/// The host may change names and values before the first page.
void SeparatePages::Offer() {
    const TableInput& input = frame_.input;
    names_ = input.names;
    cells_ = input.cells;
    auto& offer = scope_.context.events.PageCreateTableSeparate;
    if (!offer.Heard()) return;
    Long rows = input.rows, columns = input.columns;
    changed_.Resize(rows, columns);
    for (Long row = 1; row <= rows; ++row)
        for (Long column = 1; column <= columns; ++column)
            changed_.Put(row, column, Text(input.cells.Html(row, column)));
    offer(rows, columns, names_, changed_);
    cells_ = CellTable(changed_);
}

/// The field whose value stands at the head of a page, or 0.
Long SeparatePages::HeaderField() const {
    const Text wanted = WithoutBlanks(options_.PageTableSeparateHeaderField);
    for (Long column = 1; column <= frame_.input.columns; ++column)
        if (table_->Holds(column) && EqualText(WithoutBlanks(names_.Get(column)), wanted)) return column;
    return 0;
}

void SeparatePages::TakeRecord(Long record) {
    for (Long column = 1; column <= frame_.input.columns; ++column)
        values_.Find(column)->assign(cells_.Html(record, column));
    SeparatePage& separate = frame_.scope.separate;
    separate.fields = frame_.input.columns;
    separate.names = names_;
    separate.values = values_;
}

void SeparatePages::Sort(const RecordVariant& variant) {
    pointers_.Resize(frame_.input.columns);
    std::iota(pointers_.begin(), pointers_.end(), 1);
    if (variant.SortsNames() || variant.SortsValues())
        services::SortText(scope_.context, variant.SortsNames() ? names_ : values_, pointers_,
                           frame_.input.columns, variant.up);
}

Text SeparatePages::SubHeader(Long record) const {
    if (options_.PageTableSeparateHeaderField.empty()) return {};
    const Text* value = values_.Find(headerField_);
    return "<B>" + (value ? *value : "Record - " + FromLong(record)) + "</B>";
}

/// Sets the links of the page for the host as well.
Text SeparatePages::Navigation(Long record) const {
    const HeaderLinks& links = frame_.scope.links;
    SeparatePage& separate = frame_.scope.separate;
    Text navigation;
    const auto link = [&](const Text& address, const Text& name) {
        navigation += address.empty() ? name : html::CreateLink(scope_, address, name, true, false, false);
    };
    const long long place = static_cast<long long>(record) - options_.PageTableSeparateRecordOffset;
    separate.all = services::FileName(frame_.filePath);
    if (place > 0) AppendLong(separate.all.append("#Rec_Num_"), place);
    const bool first = record <= 1, last = record >= frame_.input.rows;
    separate.first = first ? Text() : files_.Of(1);
    separate.previous = first ? Text() : files_.Of(record - 1);
    separate.next = last ? Text() : files_.Of(record + 1);
    separate.last = last ? Text() : files_.Of(frame_.input.rows);

    link(separate.all, links.allName);
    navigation += NavigationGap;
    link(separate.first, links.firstName);
    navigation += NavigationGap;
    link(separate.previous, links.previousName);
    navigation += NavigationGap;
    link(separate.next, links.nextName);
    navigation += NavigationGap;
    link(separate.last, links.lastName);
    return navigation;
}

html::PageSaved SeparatePages::MakeVariant(Long record, RecordVariant::Number number) {
    const RecordVariant& variant = RecordVariants[number];
    const Text path = paths_.Of(record, number);
    Sort(variant);
    html::PageInitialise(scope_);

    Text subHeader = SubHeader(record);
    Text navigation = Navigation(record);
    Long pageNumber = record, pages = frame_.input.rows;
    Text sortBy(variant.sortBy);
    Flag up = variant.up;
    scope_.context.events.PageCreateTableSeparatePage(pageNumber, pages, subHeader, navigation, sortBy, up);
    if (options_.PageTableSeparateHeaderNav)
        subHeader.append("</P>").append(LineGap).append("<P>").append(navigation);
    SetTitleBlock(scope_,
                  {"Separate", frame_.input.title, subHeader, variant.sortBy, variant.up, {}, record});

    const auto address = [&](bool linked, RecordVariant::Number to) {
        return linked ? files_.Of(record, to) : Text();
    };
    table_->Build(address(options_.PageTableSeparateSortName, variant.nameLeadsTo),
                  address(options_.PageTableSeparateSortValue, variant.valueLeadsTo), values_, pointers_);
    scope_.draft.HelpPart3 = Rope(html::PageTextBlock(scope_, scope_.settings.PageFooter, owhFontFooter));
    return html::SavePage(scope_, path);
}

bool SeparatePages::Make(Text& error) {
    html::TellProgress(scope_, "Starting Separate Pages", 0);
    Offer();
    table_.emplace(run_, names_);
    headerField_ = HeaderField();
    values_.Resize(frame_.input.columns);
    for (Long record = 1; record <= frame_.input.rows; ++record) {
        TakeRecord(record);
        bool createAll = options_.PageTableCreateAllSeparate;
        for (std::size_t i = 0; i < RecordVariants.size(); ++i) {
            const auto number = static_cast<RecordVariant::Number>(i);
            const Text path = paths_.Of(record, number);
            scope_.settings.CurrentCreatePage = path;
            if (!RecordVariants[i].Wanted(options_)) continue;
            if (i > 0 && !createAll && services::FileExists(*scope_.context.platform.files, path)) {
                html::TellPageKept(scope_, path);
                continue;
            }
            const html::PageSaved saved = MakeVariant(record, number);
            if (!saved.built) {
                error = saved.error;
                return false;
            }
            if (i == 0 && saved.newFile) createAll = true;
            html::TellPageCreated(scope_, path, saved);
            scope_.context.GiveWay();
        }
        if (record % RecordsBetweenEvents != 0) continue;
        html::TellProgress(scope_, "Saving Separate Pages", record);
        if (scope_.context.run.Pressed()) {
            error = "Interrupted by User";
            return false;
        }
    }
    return true;
}

} // namespace

bool MakeSeparatePages(TableRun& run, Text& error) { return SeparatePages(run).Make(error); }

} // namespace ostrel::tablepages

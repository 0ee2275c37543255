#include "desk/ReportJob.h"

#include <QDir>
#include <algorithm>
#include <utility>

#include "desktop/QtText.h"
#include "platform/native/NativeFiles.h"
#include "tables/CellText.h"
#include "tables/PageName.h"
#include "tables/ReportLook.h"
#include "tables/ReportPages.h"
#include "text/CodePage.h"

namespace ostrel::desk {

namespace {

/// Puts other files in the place of the platform's own while it lives.
class FilesInPlace {
public:
    FilesInPlace(Platform& platform, std::unique_ptr<Files> files)
        : platform_(platform), own_(std::exchange(platform.files, std::move(files))) {}
    ~FilesInPlace() { platform_.files = std::move(own_); }
    FilesInPlace(const FilesInPlace&) = delete;
    FilesInPlace& operator=(const FilesInPlace&) = delete;

private:
    Platform& platform_;
    Role<Files> own_;
};

Text Html(const QString& text) { return tables::HtmlArgument(text.toStdString()); }

} // namespace

ReportJob::ReportJob(desktop::OstrelWebHelpWidget& widget, Work& work, const TableFile& file,
                     const ReportPlan& plan)
    : widget_(widget), web_(widget.Web()), work_(work), calls_(work), file_(file), plan_(plan),
      table_(*file.table), page_(tables::PageNameOf(file.Stem().toStdString()) + ".htm"),
      owned_(std::make_unique<tables::ReportFiles>(std::make_unique<NativeFiles>(calls_),
                                                   file.path.toStdString(), plan.directory.toStdString(),
                                                   page_)),
      files_(owned_.get()) {
    Listen();
}

ReportJob::~ReportJob() { StopListening(); }

void ReportJob::Listen() {
    const auto listen = [this](auto& event, auto listener) {
        endListening_.emplace_back([&event, token = event.Listen(std::move(listener))] { event.End(token); });
    };
    Events& events = web_.events;
    listen(events.PageCreateProgress, [this](Text&, Long& records) { ShowProgress(records); });
    listen(events.SortProgress, [this](Text&, Long&) { ShowProgress(0); });
    listen(events.PageCreateTableTitle,
           [this](Text&, Text&, Text&, Text&, Flag&, Long&) { ShowProgress(0); });
    listen(events.PageCreated2, [this](Text& path, Flag& isNew, Flag& failed, Long&) {
        PageDone(path, isNew, failed);
        ShowProgress(0);
    });
}

StandingFiles ReportJob::Look() {
    StandingFiles standing;
    standing.trouble = QString::fromStdString(tables::ReportFiles::Trouble(plan_.directory.toStdString()));
    if (!standing.trouble.isEmpty()) return standing;
    SetProperties();
    const Array<Text> planned =
        tables::ReportFileNames(table_, Text(tables::ReportFiles::Drive) + page_, web_);
    for (const std::string& name : files_->Plan(planned, [this] { work_.GiveWay(); }))
        standing.files << QString::fromStdString(name);
    standing.otherInput = files_->OfAnotherInput();
    return standing;
}

ReportOutcome ReportJob::Run() {
    if (const std::string refusal = files_->Enter(); !refusal.empty()) {
        outcome_.directoryTrouble = QString::fromStdString(refusal);
        return outcome_;
    }
    const FilesInPlace inPlace(widget_.World(), std::move(owned_));
    if (work_.GiveWay())
        outcome_.stopped = true;
    else
        MakePages();
    // The parts of the last page are kept in the control and may be large.
    web_.PageInitialise();
    StopListening();
    return outcome_;
}

void ReportJob::StopListening() {
    for (const auto& end : endListening_) end();
    endListening_.clear();
}

void ReportJob::SetProperties() {
    web_.PageReset();
    tables::ApplyLook(tables::Look{}, web_);
    SetColumns();
    web_.PageTableRecordNumber(true);
    web_.PageTableRecordNumberSort(true);
    web_.PageTableOrderUpTT("Sort up");
    web_.PageTableOrderDownTT("Sort down");
    web_.PageTableTotalFormat("auto");
    web_.PageTableTotal(plan_.AnyTotal());
    web_.PageTableTotalSort(plan_.AnyTotal() && plan_.subTotals);
    if (plan_.records) {
        web_.PageTableAddSeparate(true);
        web_.PageTableSeparateHeaderNav(true);
        web_.PageTableSeparateHeaderField(
            plan_.MayNameRecords(plan_.recordName)
                ? table_.nameHtml[static_cast<std::size_t>(plan_.recordName) - 1]
                : Text("RecordNumber"));
    }
    web_.PageTableAddExcel(!files_->IsInput(web_.FileExtensionChange(page_, ".csv")));
    web_.PageTableExcelShownOnly(!plan_.csvAll);
    web_.PageTableSeparateShownOnly(!plan_.recordsAll);
    web_.PageSubTitle(SubTitle());
    heads_ = tables::ApplyTableLook(tables::Look{}, table_, web_);
}

void ReportJob::SetColumns() {
    const std::size_t reached = std::min(plan_.columns.size(), ColumnReach);
    for (std::size_t i = 0; i < reached; ++i) {
        const ColumnChoice& choice = plan_.columns[i];
        const Long column = static_cast<Long>(i) + 1;
        web_.PageTableColumnHide(column, !choice.show);
        web_.PageTableColumnSort(column, choice.Sorted());
        web_.PageTableColumnOrder(column, tables::SortOrderOf(choice.kind));
        const bool time = choice.kind == tables::ColumnType::Time;
        web_.PageTableColumnTotal(column, choice.Totalled() && !time);
        web_.PageTableColumnTotalTime(column, choice.Totalled() && time);
    }
}

Text ReportJob::SubTitle() const {
    // Where the file's name is that of the input, it holds what is hidden as well.
    const bool tellsHidden =
        !web_.PageTableAddExcel() && tables::ShownColumns(table_, web_) < table_.Columns() && !plan_.csvAll;
    return tables::DefaultSubTitle(table_, tellsHidden ? Text() : web_.FileExtensionChange(page_, ".csv"),
                                   web_);
}

void ReportJob::MakePages() {
    std::vector<tables::ColumnType> types;
    for (const ColumnChoice& choice : plan_.columns) types.push_back(choice.kind);
    Text message;
    const bool made = tables::MakeReport(table_, types, Text(tables::ReportFiles::Drive) + page_,
                                         Html(plan_.title), web_, message);
    Finish(made, message);
    outcome_.cells = table_.rows * (1 + std::count_if(plan_.columns.begin(), plan_.columns.end(),
                                                      [](const ColumnChoice& c) { return c.show; }));
    outcome_.page = QDir(plan_.directory).absoluteFilePath(desktop::ToQt(page_));
}

void ReportJob::Finish(bool made, const Text& message) {
    outcome_.stopped = work_.StopWanted() && !made;
    std::string trouble = files_->End();
    if (!made && !outcome_.stopped && failures_.Empty() && trouble.empty()) {
        // There is no event for the CSV file, and the message does not name it.
        if (files_->LastFailed().empty())
            trouble = files_->Shown(message);
        else
            failures_.Add(files_->Shown(files_->LastFailed()), ToUtf8(files_->LastReason()));
    }
    const bool complete = made && failures_.Empty() && trouble.empty();
    const std::string leaving = files_->Leave(complete);
    if (complete) trouble = leaving;
    outcome_.deleted = static_cast<qint64>(files_->Deleted());
    for (const std::string& sentence : failures_.Sentences())
        outcome_.troubles << QString::fromStdString(sentence);
    if (!trouble.empty()) outcome_.troubles << QString::fromStdString(trouble);
    outcome_.made = made && outcome_.troubles.isEmpty();
}

void ReportJob::PageDone(const Text& path, bool isNew, bool failed) {
    if (!failed)
        ++(isNew ? outcome_.written : outcome_.unchanged);
    else if (files_->End().empty())
        failures_.Add(files_->Shown(path), ToUtf8(files_->LastReason()));
    else
        web_.HostStop(true);
    ++pagesDone_;
}

void ReportJob::ShowProgress(Long records) {
    // A page of the whole table costs its rows; one of a single record about as much as so many of them.
    constexpr double recordCost = 20;
    const double rows = table_.rows;
    const auto tablePages = static_cast<double>(plan_.TablePages());
    const auto recordPages = static_cast<double>(plan_.RecordPages(table_.rows));
    const auto done = static_cast<double>(pagesDone_);
    const double cost = tablePages * rows + recordPages * recordCost;
    const double tableDone = std::min(done, tablePages);
    double spent = tableDone * rows + (done - tableDone) * recordCost;
    if (done < tablePages) spent += std::min<double>(records, rows) / 2;
    work_.Show(spent / cost);
}

} // namespace ostrel::desk

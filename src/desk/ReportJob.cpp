#include "desk/ReportJob.h"

#include <QDir>
#include <algorithm>
#include <utility>

#include "cli/CellText.h"
#include "cli/PageName.h"
#include "cli/ReportLook.h"
#include "cli/ReportOptions.h"
#include "desktop/QtText.h"
#include "platform/native/NativeFiles.h"
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
    std::unique_ptr<Files> own_;
};

Text Html(const QString& text) { return cli::HtmlArgument(text.toStdString()); }

/// As the command line writes it, so that its reports and these stay the same.
QString Plural(std::size_t count, const QString& thing) {
    return QString::number(count) + " " + thing + (count == 1 ? "" : "s");
}

} // namespace

ReportJob::ReportJob(desktop::OstrelWebHelpWidget& widget, Work& work, const TableFile& file,
                     const ReportPlan& plan)
    : widget_(widget), web_(widget.Web()), work_(work), calls_(work), file_(file), plan_(plan),
      table_(*file.table), page_(cli::PageNameOf(file.Stem().toStdString()) + ".htm") {
    Listen();
}

ReportJob::~ReportJob() {
    for (const auto& end : endListening_) end();
}

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

ReportOutcome ReportJob::Run() {
    auto files =
        std::make_unique<cli::ReportFiles>(std::make_unique<NativeFiles>(calls_), file_.path.toStdString());
    const std::string directory = plan_.directory.toStdString();
    if (const std::string refusal = files->Enter(directory); !refusal.empty()) {
        outcome_.directoryTrouble = QString::fromStdString(refusal);
        return outcome_;
    }
    files_ = files.get();
    const FilesInPlace inPlace(widget_.World(), std::move(files));
    SetProperties();
    if (work_.GiveWay())
        outcome_.stopped = true;
    else
        MakePages();
    files_ = nullptr;
    // The parts of the last page stand in the control, and may be large.
    web_.PageInitialise();
    return outcome_;
}

void ReportJob::SetProperties() {
    web_.PageReset();
    cli::ApplyLook(cli::ReportOptions{}, web_);
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
        const auto column = static_cast<std::size_t>(plan_.recordName);
        web_.PageTableSeparateHeaderField(column > 0 && column <= table_.nameHtml.size()
                                              ? table_.nameHtml[column - 1]
                                              : Text("RecordNumber"));
    }
    const Text csv = web_.FileExtensionChange(page_, ".csv");
    web_.PageTableAddExcel(!files_->IsInput(plan_.directory.toStdString(), csv));
    web_.PageSubTitle(SubTitle());
}

void ReportJob::SetColumns() {
    const std::size_t reached = std::min(plan_.columns.size(), ColumnReach);
    for (std::size_t i = 0; i < reached; ++i) {
        const ColumnChoice& choice = plan_.columns[i];
        const Long column = static_cast<Long>(i) + 1;
        web_.PageTableColumnHide(column, !choice.show);
        web_.PageTableColumnSort(column, choice.Sorted());
        web_.PageTableColumnOrder(column, cli::SortOrderOf(choice.kind));
        const bool time = choice.kind == cli::ColumnType::Time;
        web_.PageTableColumnTotal(column, choice.Totalled() && !time);
        web_.PageTableColumnTotalTime(column, choice.Totalled() && time);
    }
}

Text ReportJob::SubTitle() const {
    const Text csv = web_.FileExtensionChange(page_, ".csv");
    return Html(Plural(static_cast<std::size_t>(table_.rows), "row") + ", " +
                Plural(table_.names.size(), "column")) +
           " &middot; " + web_.CreateLink(csv, csv, false, false, false);
}

void ReportJob::MakePages() {
    const Array<Text> names{std::vector<Text>(table_.nameHtml)};
    const Array<Text> plainNames{std::vector<Text>(table_.names)};
    Array<Flag> right;
    for (const ColumnChoice& choice : plan_.columns) right.Append(choice.kind != cli::ColumnType::Text);
    const CellTable cells(table_.cells.Cells(), table_.rows, table_.Columns(), &plainNames);
    Text message;
    const bool made = web_.PageCreateTableFrom(Text(cli::ReportFiles::Drive) + page_, Html(plan_.title),
                                               names, right, cells, message);
    for (auto failure = failures_.cbegin(); failure != failures_.cend(); ++failure)
        outcome_.troubles << failure.key() + " can't be written: " + failure.value() + ".";
    outcome_.stopped = work_.StopWanted() && !made;
    if (!made && !outcome_.stopped && failures_.isEmpty()) {
        // No event tells of the CSV file, and the message does not name it.
        const Text& failed = files_->LastFailed();
        outcome_.troubles << QString::fromStdString(
            failed.empty()
                ? files_->Shown(message)
                : files_->Shown(failed) + " can't be written: " + ToUtf8(files_->LastReason()) + ".");
    }
    outcome_.made = made && outcome_.troubles.isEmpty();
    outcome_.cells = table_.rows * (1 + std::count_if(plan_.columns.begin(), plan_.columns.end(),
                                                      [](const ColumnChoice& c) { return c.show; }));
    outcome_.page = QDir(plan_.directory).absoluteFilePath(desktop::ToQt(page_));
}

void ReportJob::PageDone(const Text& path, bool isNew, bool failed) {
    if (failed)
        failures_[QString::fromStdString(files_->Shown(path))] = desktop::ToQt(files_->LastReason());
    else
        ++(isNew ? outcome_.written : outcome_.unchanged);
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

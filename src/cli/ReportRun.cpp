#include "cli/ReportRun.h"

#include <cstdio>
#include <string_view>

#include "cli/Interrupt.h"
#include "cli/LookOptions.h"
#include "cli/PropertyText.h"
#include "cli/ReportColumns.h"
#include "cli/StopClock.h"
#include "cli/Usage.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/native/NativePlatform.h"
#include "tables/CountText.h"
#include "tables/CsvSource.h"
#include "tables/PageName.h"
#include "tables/ReportPages.h"
#include "tables/SqliteSource.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::cli {

using tables::CsvFormat;
using tables::HtmlArgument;
using tables::InputError;
using tables::ReportFiles;

namespace {

constexpr const char* PageExtension = ".htm";

std::string BytesText(std::uint64_t bytes) {
    const char* const units[] = {"bytes", "KB", "MB", "GB"};
    double size = static_cast<double>(bytes);
    std::size_t unit = 0;
    while (size >= 1000 && unit < 3) {
        size /= 1000;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, unit == 0 ? "%.0f %s" : "%.1f %s", size, units[unit]);
    return text;
}

CsvFormat FormatOf(const ReportOptions& options) {
    CsvFormat format;
    if (EqualText(options.encoding, "utf-8") || EqualText(options.encoding, "utf8"))
        format.encoding = tables::TextEncoding::Utf8;
    else if (!EqualText(options.encoding, "auto"))
        format.encoding = tables::TextEncoding::Windows1252;
    const std::pair<std::string_view, char> words[] = {{"comma", ','}, {"semicolon", ';'}, {"tab", '\t'},
                                                       {"\\t", '\t'},  {"pipe", '|'},      {"blank", ' '}};
    for (const auto& [word, character] : words)
        if (EqualText(options.delimiter, word)) format.delimiter = character;
    if (format.delimiter || options.delimiter.empty()) return format;
    if (options.delimiter.size() != 1 ||
        std::string_view("\"\r\n").find(options.delimiter[0]) != std::string_view::npos ||
        static_cast<unsigned char>(options.delimiter[0]) >= 0x80)
        throw UsageError("--delimiter " + options.delimiter +
                         ": it must be one character, or comma, semicolon, tab or pipe.");
    format.delimiter = options.delimiter[0];
    return format;
}

void ApplyRecords(const ReportOptions& options, OstrelWebHelp& web) {
    if (options.records.empty() || options.records == "false" || options.noRecords) return;
    web.PageTableAddSeparate(true);
    web.PageTableSeparateHeaderNav(true);
    if (options.recordTitle.empty()) web.PageTableSeparateHeaderField("RecordNumber");
    if (options.records == "true") return;
    std::string_view rest = options.records;
    while (!rest.empty()) {
        const std::string_view word = rest.substr(0, rest.find(','));
        rest.remove_prefix(std::min(rest.size(), word.size() + 1));
        if (EqualText(word, "name"))
            web.PageTableSeparateSortName(true);
        else if (EqualText(word, "value"))
            web.PageTableSeparateSortValue(true);
        else
            throw UsageError("--records=" + options.records + ": the variants are name and value.");
    }
}

} // namespace

ReportRun::ReportRun(const ReportOptions& options)
    : options_(options), progress_(!options.quiet),
      table_(options.html ? tables::Markup::Html : tables::Markup::Escape) {}

int ReportRun::Run() {
    if (options_.directory.empty()) throw UsageError("-o: the directory has no name.");
    const std::string trouble = ReportFiles::Trouble(options_.directory);
    if (!trouble.empty()) throw InputError(trouble);
    Read();
    SetUp();
    ThrowIfInterrupted();
    CheckFilesThere();
    const std::string refusal = files_->Enter();
    if (!refusal.empty()) throw InputError(refusal);
    return MakePages();
}

void ReportRun::Read() {
    progress_.Show("Reading " + options_.input);
    const bool wantsDatabase = !options_.query.empty() || !options_.table.empty();
    if (tables::IsSqliteFile(options_.input)) {
        tables::SqliteSource rows(options_.input, options_.query, options_.table, Interrupted);
        return tables::ReadTable(rows, table_);
    }
    tables::FileSource file(options_.input, Interrupted);
    if (wantsDatabase) throw InputError(file.Name() + " is not a SQLite database, so it takes no query.");
    tables::CsvSource rows(file, FormatOf(options_), !options_.noHeader);
    tables::ReadTable(rows, table_);
}

Text ReportRun::PageName() const {
    if (options_.name.empty())
        return tables::PageNameOf(options_.input == "-" ? "report" : tables::StemOf(options_.input));
    const Text name = tables::PlainArgument(options_.name);
    for (char c : name)
        if (!tables::IsNameCharacter(c))
            throw UsageError("--name " + options_.name + ": it may hold letters, digits, - and _.");
    return name;
}

Text ReportRun::TitleText() const {
    if (!options_.title.empty()) return HtmlArgument(options_.title);
    return HtmlArgument(options_.input == "-" ? "Report" : tables::StemOf(options_.input));
}

void ReportRun::SetUp() {
    page_ = PageName() + PageExtension;
    auto files = std::make_unique<ReportFiles>(MakeNativeFiles(), options_.input, options_.directory, page_);
    files_ = files.get();
    platform_ = MakeHeadlessPlatform(false);
    platform_.pane = nullptr; // a report shows nothing
    platform_.files = std::move(files);
    platform_.clock = std::make_unique<StopClock>(MakeNativeClock(), [this] { web_->HostStop(true); });
    web_ = std::make_unique<OstrelWebHelp>(platform_);
    OstrelWebHelp& web = *web_;
    web.InitProperties();
    web.PageReset();

    const tables::Look look = LookOf(options_);
    tables::ApplyLook(look, web);
    AddHeaderLinks(options_, web);
    ApplyColumnOptions(options_, table_, web);
    ApplyRecords(options_, web);
    web.PageTableRecordNumber(!options_.noRecordNumbers);
    web.PageFooter(HtmlArgument(options_.footer));
    web.PageTableOrderUpTT("Sort up");
    web.PageTableOrderDownTT("Sort down");

    csvIsInput_ = files_->IsInput(web.FileExtensionChange(page_, ".csv"));
    web.PageTableAddExcel(!options_.noCsv && !csvIsInput_);
    web.PageTableExcelShownOnly(!options_.csvAll);
    web.PageTableSeparateShownOnly(!options_.recordsAll);
    const Text subTitle = SubTitle();
    web.PageSubTitle(subTitle);
    for (const std::string& assignment : options_.set) SetProperty(web, assignment);
    // A column may just have been hidden.
    if (web.PageSubTitle() == subTitle) web.PageSubTitle(SubTitle());
    CheckShownColumns(options_, table_, web);
    CheckPageNames(table_, web);
    heads_ = tables::ApplyTableLook(look, table_, web);
    Listen();
}

Text ReportRun::SubTitle() const {
    if (options_.subTitle) return HtmlArgument(*options_.subTitle);
    // The input itself holds what is hidden as well.
    const bool tellsHidden =
        csvIsInput_ && tables::ShownColumns(table_, *web_) < table_.Columns() && !options_.csvAll;
    const bool linksCsv = !options_.noCsv && !tellsHidden;
    return tables::DefaultSubTitle(table_, linksCsv ? web_->FileExtensionChange(page_, ".csv") : Text(),
                                   *web_);
}

void ReportRun::CheckFilesThere() {
    const std::vector<std::string> there =
        files_->Plan(tables::ReportFileNames(table_, Text(ReportFiles::Drive) + page_, *web_));
    if (there.empty()) return;
    if (options_.overwrite) return files_->AllowAll();
    const std::string first = files_->Shown(ReportFiles::Drive) + there.front();
    if (there.size() == 1)
        throw InputError(first + " is there already and no report made it; --overwrite replaces it.");
    throw InputError(first + " and " + tables::Grouped(there.size() - 1) + " more " +
                     (there.size() == 2 ? "file" : "files") +
                     " are there already and no report made them; --overwrite replaces them.");
}

void ReportRun::Listen() {
    Events& events = web_->events;
    events.PageCreateProgress.Listen([this](Text& message, Long& records) {
        progress_.Show(ToUtf8(message) + (records > 0 ? " " + std::to_string(records) : ""));
    });
    events.PageCreated2.Listen(
        [this](Text& path, Flag& isNew, Flag& failed, Long& bytes) { PageDone(path, isNew, failed, bytes); });
}

void ReportRun::PageDone(const Text& path, bool isNew, bool failed, Long bytes) {
    if (!failed)
        isNew ? (++written_, bytes_ += static_cast<std::uint64_t>(bytes)) : ++unchanged_;
    else if (files_->End().empty())
        failures_.Add(files_->Shown(path), ToUtf8(files_->LastReason()));
    else
        web_->HostStop(true);
}

int ReportRun::MakePages() {
    Text message;
    const bool made = tables::MakeReport(table_, table_.types, Text(ReportFiles::Drive) + page_, TitleText(),
                                         *web_, message);
    progress_.Clear();
    // There is no event for the CSV file, and the message does not name it.
    const bool csvFailed = !made && failures_.Empty() && !files_->LastFailed().empty();
    if (csvFailed && files_->End().empty())
        failures_.Add(files_->Shown(files_->LastFailed()), ToUtf8(files_->LastReason()));
    std::string trouble = files_->End();
    const bool complete = made && failures_.Empty() && trouble.empty() && !Interrupted();
    const std::string leaving = files_->Leave(complete);
    if (trouble.empty() && complete) trouble = leaving;
    if (trouble.empty() && !made && !csvFailed) trouble = files_->Shown(message);
    return Tell(complete, trouble);
}

int ReportRun::Tell(bool complete, const std::string& trouble) const {
    for (const std::string& sentence : failures_.Sentences())
        std::fprintf(stderr, "ostrel: %s\n", sentence.c_str());
    if (Interrupted()) {
        std::fputs("Interrupted by User\n", stderr);
        return 130;
    }
    if (!trouble.empty()) std::fprintf(stderr, "ostrel: %s\n", trouble.c_str());
    if (!complete || !trouble.empty()) return 1;
    if (options_.quiet) return 0;
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    const std::string deleted =
        files_->Deleted() > 0 ? tables::Counted(files_->Deleted(), "old file") + " taken away, " : "";
    std::printf("%s: %s written (%s), %zu unchanged, %s%.2f seconds\n",
                files_->Shown(Text(ReportFiles::Drive) + page_).c_str(),
                tables::Counted(written_, "page").c_str(), BytesText(bytes_).c_str(), unchanged_,
                deleted.c_str(), seconds);
    return 0;
}

} // namespace ostrel::cli

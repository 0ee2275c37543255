#include "cli/ReportRun.h"

#include <cstdio>
#include <string_view>

#include "cli/InputError.h"
#include "cli/Interrupt.h"
#include "cli/PageName.h"
#include "cli/PropertyText.h"
#include "cli/ReportColumns.h"
#include "cli/ReportLook.h"
#include "cli/StopClock.h"
#include "cli/Usage.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/native/NativePlatform.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::cli {

namespace {

constexpr const char* PageExtension = ".htm";

std::string Plural(std::size_t count, const char* thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

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
        format.encoding = TextEncoding::Utf8;
    else if (!EqualText(options.encoding, "auto"))
        format.encoding = TextEncoding::Windows1252;
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
    : options_(options), progress_(!options.quiet), table_(options.html ? Markup::Html : Markup::Escape) {}

int ReportRun::Run() {
    if (options_.directory.empty()) throw UsageError("-o: the directory has no name.");
    const std::string trouble = ReportFiles::Trouble(options_.directory);
    if (!trouble.empty()) throw InputError(trouble);
    Read();
    SetUp();
    ThrowIfInterrupted();
    const std::string refusal = files_->Enter(options_.directory);
    if (!refusal.empty()) throw InputError(refusal);
    return MakePages();
}

void ReportRun::Read() {
    progress_.Show("Reading " + options_.input);
    const bool wantsDatabase = !options_.query.empty() || !options_.table.empty();
    if (IsSqliteFile(options_.input))
        return ReadSqliteTable(options_.input, options_.query, options_.table, table_);
    FileSource source(options_.input);
    if (wantsDatabase) throw InputError(source.Name() + " is not a SQLite database, so it takes no query.");
    ReadCsvTable(source, FormatOf(options_), !options_.noHeader, table_);
}

Text ReportRun::PageName() const {
    if (options_.name.empty()) return PageNameOf(options_.input == "-" ? "report" : StemOf(options_.input));
    const Text name = PlainArgument(options_.name);
    for (char c : name)
        if (!IsNameCharacter(c))
            throw UsageError("--name " + options_.name + ": it may hold letters, digits, - and _.");
    return name;
}

Text ReportRun::TitleText() const {
    if (!options_.title.empty()) return HtmlArgument(options_.title);
    return HtmlArgument(options_.input == "-" ? "Report" : StemOf(options_.input));
}

void ReportRun::SetUp() {
    page_ = PageName() + PageExtension;
    auto files = std::make_unique<ReportFiles>(MakeNativeFiles(), options_.input);
    files_ = files.get();
    platform_ = MakeHeadlessPlatform(false);
    platform_.pane.reset(); // a report shows nothing
    platform_.files = std::move(files);
    platform_.clock = std::make_unique<StopClock>(std::move(platform_.clock), [this] { PassOnStop(); });
    web_ = std::make_unique<OstrelWebHelp>(platform_);
    OstrelWebHelp& web = *web_;
    web.InitProperties();
    web.PageReset();

    ApplyLook(options_, web);
    ApplyColumnOptions(options_, table_, web);
    ApplyRecords(options_, web);
    web.PageTableRecordNumber(!options_.noRecordNumbers);
    web.PageFooter(HtmlArgument(options_.footer));
    web.PageTableOrderUpTT("Sort up");
    web.PageTableOrderDownTT("Sort down");

    const Text csv = web.FileExtensionChange(page_, ".csv");
    const bool inPlace = files_->IsInput(options_.directory, csv);
    web.PageTableAddExcel(!options_.noCsv && !inPlace);
    if (options_.subTitle) {
        web.PageSubTitle(HtmlArgument(*options_.subTitle));
    } else {
        Text subTitle = HtmlArgument(Plural(static_cast<std::size_t>(table_.rows), "row") + ", " +
                                     Plural(table_.names.size(), "column"));
        if (!options_.noCsv) subTitle += " &middot; " + web.CreateLink(csv, csv, false, false, false);
        web.PageSubTitle(subTitle);
    }
    for (const std::string& assignment : options_.set) SetProperty(web, assignment);
    CheckPageNames(table_, web);
    Listen();
}

void ReportRun::PassOnStop() {
    if (Interrupted()) web_->StopPressed(true);
}

void ReportRun::Listen() {
    Events& events = web_->events;
    // The sorts and the run itself clear the flag as they begin, so every event passes it on again.
    events.PageCreateProgress.Listen([this](Text& message, Long& records) {
        PassOnStop();
        progress_.Show(ToUtf8(message) + (records > 0 ? " " + std::to_string(records) : ""));
    });
    events.SortProgress.Listen([this](Text&, Long&) { PassOnStop(); });
    events.PageCreateTableTitle.Listen([this](Text&, Text&, Text&, Text&, Flag&, Long&) { PassOnStop(); });
    events.PageCreated2.Listen([this](Text& path, Flag& isNew, Flag& failed, Long& bytes) {
        PassOnStop();
        PageDone(path, isNew, failed, bytes);
    });
}

void ReportRun::PageDone(const Text& path, bool isNew, bool failed, Long bytes) {
    if (failed)
        failures_[path] = files_->LastReason();
    else if (isNew)
        ++written_, bytes_ += static_cast<std::uint64_t>(bytes);
    else
        ++unchanged_;
}

int ReportRun::MakePages() {
    Array<Text> names{std::vector<Text>(table_.nameHtml)};
    const Array<Text> plainNames{std::vector<Text>(table_.names)};
    Array<Flag> right;
    for (ColumnType type : table_.types) right.Append(type != ColumnType::Text);
    const CellTable cells(table_.cells.Cells(), table_.rows, table_.Columns(), &plainNames);
    Text message;
    const bool made = web_->PageCreateTableFrom(Text(ReportFiles::Drive) + page_, TitleText(), names, right,
                                                cells, message);
    progress_.Clear();
    // No event tells of the CSV file, and the message does not name it.
    const bool csvFailed = !made && failures_.empty() && !files_->LastFailed().empty();
    if (csvFailed) failures_[files_->LastFailed()] = files_->LastReason();
    return Tell(made || csvFailed, message);
}

int ReportRun::Tell(bool made, const Text& message) const {
    for (const auto& [path, reason] : failures_)
        std::fprintf(stderr, "ostrel: %s can't be written: %s.\n", files_->Shown(path).c_str(),
                     ToUtf8(reason).c_str());
    if (Interrupted()) {
        std::fputs("Interrupted by User\n", stderr);
        return 130;
    }
    if (!made) std::fprintf(stderr, "ostrel: %s\n", files_->Shown(message).c_str());
    if (!made || !failures_.empty()) return 1;
    if (options_.quiet) return 0;
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    std::printf("%s: %s written (%s), %zu unchanged, %.2f seconds\n",
                files_->Shown(Text(ReportFiles::Drive) + page_).c_str(), Plural(written_, "page").c_str(),
                BytesText(bytes_).c_str(), unchanged_, seconds);
    return 0;
}

} // namespace ostrel::cli

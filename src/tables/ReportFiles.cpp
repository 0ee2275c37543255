#include "tables/ReportFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "platform/native/SystemErrors.h"
#include "tables/PageName.h"
#include "text/CodePage.h"

namespace ostrel::tables {

namespace {

constexpr std::size_t NamesBetweenYields = 4096;

FileResult Refused() { return {75, "Path/File access error"}; }

std::string CannotWrite(const std::string& directory, const std::string& why) {
    return "The directory " + directory + " can't be written: " + why + ".";
}

std::string WithoutSlashes(std::string directory) {
    while (directory.size() > 1 && directory.back() == '/') directory.pop_back();
    return directory;
}

} // namespace

ReportFiles::ReportFiles(std::unique_ptr<Files> native, const std::string& input,
                         const std::string& directory, const Text& mainPage)
    : native_(std::move(native)), input_(input == "-" ? std::nullopt : IdentityOf(input)),
      directory_(WithoutSlashes(directory)), own_(directory_, StemOf(ToUtf8(mainPage)), input) {}

ReportFiles::~ReportFiles() {
    if (handle_ >= 0) close(handle_);
}

ReportFiles::Identity ReportFiles::IdentityOf(const struct stat& status) {
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

std::optional<ReportFiles::Identity> ReportFiles::IdentityOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return IdentityOf(status);
}

std::string ReportFiles::Trouble(const std::string& directory) {
    struct stat status {};
    if (stat(directory.c_str(), &status) != 0) {
        if (errno == ENOENT) return {};
        return CannotWrite(directory, std::strerror(errno));
    }
    if (!S_ISDIR(status.st_mode)) return CannotWrite(directory, "it is no directory");
    if (access(directory.c_str(), W_OK | X_OK) != 0) return CannotWrite(directory, std::strerror(errno));
    return {};
}

std::vector<std::string> ReportFiles::Plan(const Array<Text>& names, const std::function<void()>& giveWay) {
    std::size_t planned = 0;
    for (const Text& name : names) {
        own_.Plan(ToUtf8(name));
        if (++planned % NamesBetweenYields == 0 && giveWay) giveWay();
    }
    return own_.InTheWay([this](const struct stat& there) { return input_ == IdentityOf(there); }, giveWay);
}

std::string ReportFiles::Enter() {
    std::error_code error;
    std::filesystem::create_directories(directory_, error);
    const std::string trouble = Trouble(directory_);
    if (!trouble.empty()) return trouble;
    if (error) return CannotWrite(directory_, error.message());
    handle_ = open(directory_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle_ < 0) return CannotWrite(directory_, std::strerror(errno));

    const std::filesystem::path whole = std::filesystem::absolute(directory_, error);
    system_ = whole.string();
    // A name outside the code page has no path in the component; the open directory has one.
    if (!FromUtf8(system_) || system_.find('\\') != std::string::npos)
        system_ = "/proc/self/fd/" + std::to_string(handle_);
    if (system_.back() != '/') system_ += '/';
    const std::optional<Text> text = FromUtf8(system_);
    base_ = "C:" + ReplaceAll(*text, "/", "\\");
    return {};
}

bool ReportFiles::IsInput(const Text& name) const {
    return input_ && IdentityOf(directory_ + "/" + ToUtf8(name)) == input_;
}

std::string ReportFiles::Shown(TextView text) const {
    return ToUtf8(text.find(Drive) == TextView::npos ? Text(text)
                                                     : ReplaceAll(text, Drive, directory_ + "/"));
}

/// Returns the native path of a name on the drive, or nothing for other paths.
std::optional<Text> ReportFiles::Inside(const Text& path) const {
    if (base_.empty() || !path.starts_with(Drive)) return std::nullopt;
    const TextView name = TextView(path).substr(Drive.size());
    if (name == ".." || name.find_first_of(TextView("\\/:\0", 4)) != TextView::npos) return std::nullopt;
    return base_ + Text(name);
}

bool ReportFiles::IsFile(const Text& path) {
    const auto inside = Inside(path);
    return inside && native_->IsFile(*inside);
}

bool ReportFiles::IsDirectory(const Text& path) {
    const auto inside = Inside(path);
    return inside && native_->IsDirectory(*inside);
}

FileResult ReportFiles::Size(const Text& path, std::uint64_t& size) {
    const auto inside = Inside(path);
    return inside ? native_->Size(*inside, size) : Refused();
}

FileResult ReportFiles::Written(const Text& path, Date& when) {
    const auto inside = Inside(path);
    return inside ? native_->Written(*inside, when) : Refused();
}

FileResult ReportFiles::Read(const Text& path, Text& content) {
    const auto inside = Inside(path);
    return inside ? native_->Read(*inside, content) : Refused();
}

FileResult ReportFiles::Open(const Text& path, std::unique_ptr<FileReader>& reader) {
    const auto inside = Inside(path);
    return inside ? native_->Open(*inside, reader) : Refused();
}

FileResult ReportFiles::MayReplace(const std::string& name) const {
    struct stat there {};
    if (fstatat(handle_, name.c_str(), &there, AT_SYMLINK_NOFOLLOW) != 0) return {};
    const auto identity = S_ISLNK(there.st_mode) ? IdentityOf(system_ + name) : IdentityOf(there);
    if (input_ && identity == input_) return {75, "It is the input itself"};
    if (!own_.MayReplace(name, there)) return {75, "It is there already and no report made it"};
    return {};
}

FileResult ReportFiles::Replace(const Text& path, std::span<const TextView> pieces, const Text& backup) {
    const auto inside = Inside(path);
    if (!end_.empty()) return {75, "Nothing more is written"};
    FileResult result;
    if (!inside) {
        result = {75, "It lies outside the directory of the report"};
    } else {
        const std::string name = ToUtf8(TextView(path).substr(Drive.size()));
        result = MayReplace(name);
        // Whatever happens from here on, the next run knows this file for its own.
        if (result && !listKept_) {
            result = Keep(own_.ListBefore());
            listKept_ = static_cast<bool>(result);
            if (!result) return result;
        }
        // The target of a symbolic link is elsewhere and is not changed.
        struct stat there {};
        if (result && fstatat(handle_, name.c_str(), &there, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISLNK(there.st_mode))
            unlinkat(handle_, name.c_str(), 0);
        if (result)
            result =
                native_->Replace(*inside, pieces, backup.empty() ? backup : Inside(backup).value_or(Text()));
        if (result) {
            std::uint64_t size = 0;
            for (const TextView piece : pieces) size += piece.size();
            own_.Written(name, size);
        }
    }
    if (!result) Failed(path, result);
    return result;
}

/// Writes the list. Without it no file is written, since the next run would not know it for its own.
FileResult ReportFiles::Keep(const std::string& list) {
    const Text path = Text(Drive) + FromUtf8(own_.ListName()).value_or(Text());
    const TextView piece = list;
    FileResult result = list.empty() ? FileResult{75, "There are too many files"}
                                     : native_->Replace(*Inside(path), {&piece, 1});
    if (result) return result;
    Failed(path, result);
    if (end_.empty()) end_ = Shown(path) + " can't be written: " + ToUtf8(lastReason_) + ".";
    return result;
}

void ReportFiles::Failed(const Text& path, const FileResult& result) {
    lastFailed_ = path;
    lastReason_ = result.text.ends_with('.') ? result.text.substr(0, result.text.size() - 1) : result.text;
    if (result.text == SystemSentence(ENOSPC) || result.text == SystemSentence(EDQUOT))
        end_ = "The disk is full: " + Shown(path) + " can't be written, and the report is not complete.";
}

std::string ReportFiles::DeleteOld() {
    std::string trouble;
    for (const std::string& name : own_.Outdated()) {
        const auto text = FromUtf8(name);
        if (!text || !own_.Unchanged(name) || IsInput(*text)) continue;
        if (const FileResult result = native_->Delete(base_ + *text)) {
            own_.Deleted(name);
            ++deleted_;
        } else if (trouble.empty()) {
            trouble = directory_ + "/" + name + " is old and can't be taken away: " + ToUtf8(result.text);
        }
    }
    return trouble;
}

std::string ReportFiles::Leave(bool complete) {
    const std::string trouble = complete ? DeleteOld() : std::string();
    const auto list = complete || listKept_ ? own_.ListAfter(complete) : std::nullopt;
    const std::string end = end_;
    if (!list || Keep(*list)) return trouble;
    // After a run that has failed the list of its beginning does as well.
    const std::string listTrouble = std::exchange(end_, end);
    return complete && trouble.empty() ? listTrouble : trouble;
}

FileResult ReportFiles::Delete(const Text&) { return Refused(); }
FileResult ReportFiles::Rename(const Text&, const Text&) { return Refused(); }
FileResult ReportFiles::ClearAttributes(const Text&) { return Refused(); }
FileResult ReportFiles::MakeDirectory(const Text&) { return Refused(); }
FileResult ReportFiles::ChangeDirectory(const Text&) { return Refused(); }
FileResult ReportFiles::ChangeDrive(const Text&) { return Refused(); }
FileResult ReportFiles::MakeTemporary(const Text&, Text&) { return Refused(); }

std::vector<Text> ReportFiles::List(const Text& mask) {
    const auto inside = Inside(mask);
    return inside ? native_->List(*inside) : std::vector<Text>();
}

} // namespace ostrel::tables

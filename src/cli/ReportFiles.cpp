#include "cli/ReportFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

FileResult Refused() { return {75, "Path/File access error"}; }

std::string CannotWrite(const std::string& directory, const std::string& why) {
    return "The directory " + directory + " can't be written: " + why + ".";
}

} // namespace

ReportFiles::ReportFiles(std::unique_ptr<Files> native, const std::string& input)
    : native_(std::move(native)), input_(input == "-" ? std::nullopt : IdentityOf(input)) {}

ReportFiles::~ReportFiles() {
    if (handle_ >= 0) close(handle_);
}

std::optional<ReportFiles::Identity> ReportFiles::IdentityOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return Identity{static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
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

std::string ReportFiles::Enter(const std::string& directory) {
    directory_ = directory;
    while (directory_.size() > 1 && directory_.back() == '/') directory_.pop_back();
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

bool ReportFiles::IsInput(const std::string& directory, const Text& name) const {
    return input_ && IdentityOf(directory + "/" + ToUtf8(name)) == input_;
}

std::string ReportFiles::Shown(TextView text) const {
    return ToUtf8(text.find(Drive) == TextView::npos ? Text(text)
                                                     : ReplaceAll(text, Drive, directory_ + "/"));
}

/// The native path of a name on the drive; nothing for whatever lies elsewhere.
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

FileResult ReportFiles::Replace(const Text& path, std::span<const TextView> pieces, const Text& backup) {
    const auto inside = Inside(path);
    FileResult result;
    if (!inside)
        result = {75, "It lies outside the directory of the report"};
    else if (input_ && IdentityOf(system_ + ToUtf8(TextView(path).substr(Drive.size()))) == input_)
        result = {75, "It is the input itself"};
    else
        result = native_->Replace(*inside, pieces, backup.empty() ? backup : Inside(backup).value_or(Text()));
    if (result) return result;
    lastFailed_ = path;
    lastReason_ = result.text.ends_with('.') ? result.text.substr(0, result.text.size() - 1) : result.text;
    return result;
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

} // namespace ostrel::cli

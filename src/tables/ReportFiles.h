#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Files.h"
#include "tables/OwnFiles.h"
#include "text/Array.h"

namespace ostrel::tables {

/// The files of a report: one directory, which its pages know as the drive "O:". Nothing is written anywhere
/// else, the input is never written over, files that no report made are not replaced without leave, and what
/// the directory itself is called does not matter to the names of the pages.
class ReportFiles final : public Files {
public:
    static constexpr TextView Drive = "O:\\";

    /// `input` is the system's path of the input, "-" for standard input; `mainPage` is the name of the main
    /// page.
    ReportFiles(std::unique_ptr<Files> native, const std::string& input, const std::string& directory,
                const Text& mainPage);
    ~ReportFiles() override;

    /// Looks at the files that are going to be written, without making anything. The result are those that
    /// are there and were not made by a report. `giveWay` is called now and then.
    std::vector<std::string> Plan(const Array<Text>& names, const std::function<void()>& giveWay = {});
    /// Whether the existing report was made from another input.
    bool OfAnotherInput() const { return own_.OfAnotherInput(); }
    /// What `Plan` has found there may be replaced.
    void AllowAll() { own_.AllowAll(); }
    /// Makes the directory where it is missing. The sentence of what is wrong with it, empty where it can be
    /// written.
    std::string Enter();
    /// What would be wrong with a directory, found out without making anything.
    static std::string Trouble(const std::string& directory);
    /// Ends the writing. After a complete run the files that the last one made and this one did not are
    /// deleted. The sentence of what has gone wrong here, empty for nothing.
    std::string Leave(bool complete);
    /// How many files were deleted.
    std::size_t Deleted() const { return deleted_; }

    /// The last file that could not be written, or an empty text, and the reason without a full stop.
    const Text& LastFailed() const { return lastFailed_; }
    const Text& LastReason() const { return lastReason_; }
    /// The reason why nothing more can be written, such as a full disk; empty if there is no such reason.
    const std::string& End() const { return end_; }
    /// `name`, a file's name in the report's directory, is the input itself.
    bool IsInput(const Text& name) const;
    /// Returns a text such as a message with the drive replaced by the directory.
    std::string Shown(TextView text) const;

    bool IsFile(const Text& path) override;
    bool IsDirectory(const Text& path) override;
    FileResult Size(const Text& path, std::uint64_t& size) override;
    FileResult Written(const Text& path, Date& when) override;
    FileResult Read(const Text& path, Text& content) override;
    FileResult Open(const Text& path, std::unique_ptr<FileReader>& reader) override;
    FileResult Replace(const Text& path, std::span<const TextView> pieces, const Text& backup) override;
    FileResult Delete(const Text& path) override;
    FileResult Rename(const Text& from, const Text& to) override;
    FileResult ClearAttributes(const Text& path) override;
    FileResult MakeDirectory(const Text& path) override;
    FileResult ChangeDirectory(const Text& path) override;
    FileResult ChangeDrive(const Text& drive) override;
    Text CurrentDirectory() override { return Text(Drive); }
    std::vector<Text> List(const Text& mask) override;
    Text TemporaryDirectory() override { return {}; }
    FileResult MakeTemporary(const Text& prefix, Text& path) override;
    Text ApplicationDirectory() override { return native_->ApplicationDirectory(); }
    Text SystemErrorText(Long number) override { return native_->SystemErrorText(number); }

private:
    struct Identity {
        std::uint64_t device, number;
        bool operator==(const Identity&) const = default;
    };
    static Identity IdentityOf(const struct stat& status);
    static std::optional<Identity> IdentityOf(const std::string& path);
    std::optional<Text> Inside(const Text& path) const;
    FileResult MayReplace(const std::string& name) const;
    FileResult Keep(const std::string& list);
    void Failed(const Text& path, const FileResult& result);
    std::string DeleteOld();

    std::unique_ptr<Files> native_;
    std::optional<Identity> input_;
    std::string directory_; ///< as the user wrote it
    OwnFiles own_;
    std::string system_; ///< a system path of it, in ASCII, with a slash behind
    Text base_;          ///< the same for the native files
    int handle_ = -1;
    bool listKept_ = false; ///< the list covers what this run writes
    std::size_t deleted_ = 0;
    Text lastFailed_, lastReason_;
    std::string end_;
};

} // namespace ostrel::tables

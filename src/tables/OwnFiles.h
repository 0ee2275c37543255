#pragma once

#include <sys/stat.h>

#include <deque>
#include <functional>
#include <optional>
#include <unordered_map>

#include "tables/ReportList.h"

namespace ostrel::tables {

/// Which files of a directory are a report's own: those that its list names and that have not changed
/// since. Others are not replaced without leave. While the report is made anew it keeps account of its files,
/// so that the list is true at each moment. Names are the system's.
class OwnFiles {
public:
    /// Reads the list. `input` is the system's path of the input.
    OwnFiles(std::string directory, std::string stem, const std::string& input);
    OwnFiles(const OwnFiles&) = delete;
    OwnFiles& operator=(const OwnFiles&) = delete;

    /// A file that the run is going to write.
    void Plan(std::string name);
    /// Returns the planned files that exist and are not the report's own, except those for which `spared` is
    /// true, which are never written. `giveWay` is called now and then.
    std::vector<std::string> InTheWay(const std::function<bool(const struct stat&)>& spared,
                                      const std::function<void()>& giveWay);
    /// Whether the existing report was made from another input.
    bool OfAnotherInput() const { return found_ == ReportList::Found::List && list_.input != input_; }
    /// Allows the conflicting files to be replaced.
    void AllowAll() { allowed_ = true; }
    bool MayReplace(const std::string& name, const struct stat& there) const;
    void Written(const std::string& name, std::uint64_t size);

    /// The name of the list.
    std::string ListName() const { return ReportList::NameOf(stem_); }
    /// The list to write before the first file: the report's own files of old and all that are planned.
    std::string ListBefore();
    /// The files of an earlier run that this one was not going to write.
    std::vector<std::string> Outdated() const;
    /// Whether the file has the size in the list and so counts as unchanged. Where the run was cut
    /// off before it could list the size, whether it is a page of the component's.
    bool Unchanged(const std::string& name) const;
    /// The file is there no more.
    void Deleted(const std::string& name);
    /// Returns the list to write at the end, or nothing if the file holds it already. A run that is not
    /// complete adds what it has written to what was there.
    std::optional<std::string> ListAfter(bool complete) const;

private:
    struct File {
        std::string name;
        std::optional<std::uint64_t> listed, stood, written; ///< sizes
        bool planned = false, inTheWay = false;
    };
    File& At(std::string name);
    bool IsOwn(const File& file, const struct stat& there) const;
    bool Look(const std::string& name, struct stat& there) const;

    std::string directory_, stem_;
    std::string input_; ///< its mark
    ReportList list_;   ///< as it was found
    ReportList::Found found_;
    std::deque<File> files_; ///< the planned ones in their order among those of old
    std::unordered_map<std::string_view, File*> byName_;
    bool allowed_ = false;
    bool begun_ = false; ///< the list is no longer as it was found
};

} // namespace ostrel::tables

#include "tables/OwnFiles.h"

#include <algorithm>
#include <fstream>

namespace ostrel::tables {

namespace {

constexpr std::size_t FilesBetweenYields = 256;

/// Whether a file was made by the component, by the generator in its head.
bool IsGenerated(const std::string& path) {
    constexpr std::size_t longestHead = 256 << 10;
    std::ifstream file(path, std::ios::binary);
    std::string head(longestHead, '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    return head.starts_with("<HTML>") &&
           head.find("<META NAME=\"Generator\" CONTENT=\"Ostrel\">") != std::string::npos;
}

} // namespace

OwnFiles::OwnFiles(std::string directory, std::string stem, const std::string& input)
    : directory_(std::move(directory)), stem_(std::move(stem)), input_(ReportList::MarkOf(input)),
      found_(list_.Read(directory_, stem_)) {
    for (const auto& [name, size] : list_.files) At(name).listed = size;
}

OwnFiles::File& OwnFiles::At(std::string name) {
    const auto known = byName_.find(name);
    if (known != byName_.end()) return *known->second;
    File& file = files_.emplace_back();
    file.name = std::move(name);
    byName_.emplace(file.name, &file);
    return file;
}

void OwnFiles::Plan(std::string name) { At(std::move(name)).planned = true; }

bool OwnFiles::Look(const std::string& name, struct stat& there) const {
    return lstat((directory_ + "/" + name).c_str(), &there) == 0;
}

bool OwnFiles::IsOwn(const File& file, const struct stat& there) const {
    const auto size = file.written ? file.written : file.listed;
    return size && S_ISREG(there.st_mode) &&
           (*size == ReportList::UnknownSize || *size == static_cast<std::uint64_t>(there.st_size));
}

std::vector<std::string> OwnFiles::InTheWay(const std::function<bool(const struct stat&)>& spared,
                                            const std::function<void()>& giveWay) {
    std::vector<std::string> names;
    if (found_ == ReportList::Found::SomethingElse) names.push_back(ListName());
    std::size_t looked = 0;
    for (File& file : files_) {
        if (++looked % FilesBetweenYields == 0 && giveWay) giveWay();
        struct stat there {};
        if (!file.planned || !Look(file.name, there)) continue;
        file.stood = static_cast<std::uint64_t>(there.st_size);
        if (IsOwn(file, there) || spared(there)) continue;
        // Nothing takes the place of a directory, so nothing is lost there.
        file.inTheWay = !S_ISDIR(there.st_mode);
        if (file.inTheWay) names.push_back(file.name);
    }
    return names;
}

bool OwnFiles::MayReplace(const std::string& name, const struct stat& there) const {
    const auto known = byName_.find(name);
    if (known == byName_.end()) return false;
    return S_ISDIR(there.st_mode) || (allowed_ && known->second->inTheWay) || IsOwn(*known->second, there);
}

void OwnFiles::Written(const std::string& name, std::uint64_t size) {
    File& file = At(name);
    file.planned = true;
    file.written = size;
}

std::string OwnFiles::ListBefore() {
    begun_ = true;
    ReportList list;
    list.input = input_;
    for (const File& file : files_)
        list.files.emplace_back(file.name, file.planned ? ReportList::UnknownSize : *file.listed);
    return list.Spell();
}

std::vector<std::string> OwnFiles::Outdated() const {
    std::vector<std::string> names;
    for (const File& file : files_)
        if (!file.planned) names.push_back(file.name);
    return names;
}

bool OwnFiles::Unchanged(const std::string& name) const {
    const auto known = byName_.find(name);
    struct stat there {};
    if (known == byName_.end() || !Look(name, there) || !IsOwn(*known->second, there)) return false;
    return known->second->listed != ReportList::UnknownSize || IsGenerated(directory_ + "/" + name);
}

void OwnFiles::Deleted(const std::string& name) { At(name).listed.reset(); }

std::optional<std::string> OwnFiles::ListAfter(bool complete) const {
    ReportList list;
    list.input = input_;
    for (const File& file : files_) {
        struct stat there {};
        // What a complete run has not written was as it would have written it.
        if (const auto size = file.written               ? file.written
                              : complete && file.planned ? file.stood
                                                         : file.listed;
            size && (!complete || file.planned || (Look(file.name, there) && IsOwn(file, there))))
            list.files.emplace_back(file.name, *size);
    }
    if (!begun_ && found_ == ReportList::Found::List && list.files == list_.files &&
        list.input == list_.input)
        return std::nullopt;
    return list.Spell();
}

} // namespace ostrel::tables

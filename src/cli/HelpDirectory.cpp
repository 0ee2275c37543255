#include "cli/HelpDirectory.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>

#include "cli/Interrupt.h"
#include "help/SearchLoad.h"
#include "tables/CellText.h"
#include "tables/CountText.h"
#include "tables/InputError.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

namespace fs = std::filesystem;

bool IsPageName(const std::string& name) {
    return EndsWithText(name, ".htm") || EndsWithText(name, ".html") || EndsWithText(name, ".xhtml");
}

/// The bytes of a file; nothing where it cannot be read. One byte more than `most` are read of a larger one.
std::optional<std::string> ReadBytes(const std::string& path, std::size_t most) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) return std::nullopt;
    std::string bytes;
    std::size_t size = 0;
    do {
        bytes.resize(std::min(std::max<std::size_t>(2 * size, 65536), most + 1));
        size += std::fread(bytes.data() + size, 1, bytes.size() - size, file.get());
    } while (size == bytes.size() && size <= most);
    if (std::ferror(file.get())) return std::nullopt;
    bytes.resize(size);
    return bytes;
}

} // namespace

HelpDirectory::HelpDirectory(const std::string& path) : path_(path) {
    std::error_code problem;
    if (!fs::is_directory(path, problem)) throw tables::InputError(path + " is not a directory.");
    fs::recursive_directory_iterator entry(path, fs::directory_options::skip_permission_denied, problem);
    for (; !problem && entry != fs::recursive_directory_iterator(); entry.increment(problem)) {
        ThrowIfInterrupted();
        std::error_code vanished;
        if (IsPageName(entry->path().filename().string()) && entry->is_regular_file(vanished))
            names_.push_back(entry->path().lexically_relative(path).string());
    }
    if (problem) throw tables::InputError(path + ": " + problem.message() + ".");
    std::sort(names_.begin(), names_.end());
}

std::string HelpDirectory::Path(const std::string& name) const { return (fs::path(path_) / name).string(); }

void HelpDirectory::Read(const std::function<void(std::size_t place, Text html)>& take) {
    const help::SearchBounds bounds;
    for (std::size_t place = 0; place < names_.size(); ++place) {
        ThrowIfInterrupted();
        const std::optional<std::string> bytes = ReadBytes(Path(names_[place]), bounds.page);
        if (!bytes) ++unreadable_;
        const bool tooLarge = bytes && bytes->size() > bounds.page;
        if (tooLarge) ++tooLarge_;
        take(place, bytes && !tooLarge ? tables::HtmlOfPage(*bytes) : Text());
    }
}

std::string HelpDirectory::Omissions() const {
    std::string text;
    if (unreadable_ > 0) text = tables::Counted(unreadable_, "page") + " can't be read";
    if (tooLarge_ > 0)
        text +=
            (text.empty() ? "" : ", ") + tables::Counted(tooLarge_, "page") + " of more than 64 MB left out";
    return text.empty() ? text : text + ".";
}

Text LinkTo(const std::string& page, const std::string& from) {
    std::error_code problem;
    const fs::path target = fs::absolute(page, problem).lexically_normal();
    const fs::path base = fs::absolute(from, problem).lexically_normal().parent_path();
    Text link;
    for (const char c : target.lexically_relative(base).generic_string()) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                           std::string_view("-_.~/").find(c) != std::string_view::npos;
        if (plain) {
            link += c;
            continue;
        }
        char escape[4];
        std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        link += escape;
    }
    return link;
}

} // namespace ostrel::cli

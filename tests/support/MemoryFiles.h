#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "platform/Files.h"
#include "text/CodePage.h"

namespace ostrel::test {

/// Files that live in memory, on the drive C:. Names are matched exactly, masks ignoring case. The hook
/// `failAt` makes one call fail: the n-th of all that touch the file system, counted from 1.
class MemoryFiles : public Files {
public:
    std::map<Text, Text> files;
    std::set<Text> directories{"C:", "C:\\temp"};
    std::set<Text> readOnly; ///< cannot be deleted before `ClearAttributes`
    Text current = "C:\\";
    Text temporary = "C:\\temp";
    int calls = 0;
    int failAt = 0;
    int replaces = 0;
    int reads = 0;
    /// What a failing call gives.
    FileResult failure{57, "Device I/O error"};

    void Add(const Text& path, const Text& content) {
        for (std::size_t end = path.find('\\'); end != Text::npos; end = path.find('\\', end + 1))
            directories.insert(path.substr(0, end));
        files[path] = content;
    }

    bool IsFile(const Text& path) override { return Turn() && files.contains(path); }
    bool IsDirectory(const Text& path) override { return Turn() && directories.contains(Bare(path)); }
    FileResult Size(const Text& path, std::uint64_t& size) override {
        return WithFile(path, [&](Text& content) { size = content.size(); });
    }
    FileResult Written(const Text& path, Date&) override {
        return WithFile(path, [](Text&) {});
    }
    FileResult Read(const Text& path, Text& content) override {
        ++reads;
        return WithFile(path, [&](Text& stored) { content = stored; });
    }
    FileResult Open(const Text& path, std::unique_ptr<FileReader>& reader) override {
        ++reads;
        return WithFile(path, [&](Text& stored) { reader = std::make_unique<Reader>(*this, stored); });
    }

    FileResult Replace(const Text& path, std::span<const TextView> pieces, const Text& backup) override {
        if (!Turn()) return failure;
        if (directories.contains(Bare(path))) return {75, "Path/File access error"};
        if (!directories.contains(DirectoryOf(path))) return {76, "Path not found"};
        if (directories.contains(Bare(backup))) return {75, "Path/File access error", true};
        ++replaces;
        if (!backup.empty() && files.contains(path)) files[backup] = files[path];
        Text content;
        for (const TextView piece : pieces) content.append(piece);
        files[path] = content;
        return {};
    }

    FileResult Delete(const Text& path) override {
        if (!Turn()) return failure;
        if (readOnly.contains(path)) return {75, "Path/File access error"};
        return files.erase(path) ? FileResult{} : FileResult{53, "File not found"};
    }
    FileResult Rename(const Text& from, const Text& to) override {
        return WithFile(from, [&](Text& content) {
            files[to] = std::move(content);
            files.erase(from);
        });
    }
    FileResult ClearAttributes(const Text& path) override {
        if (!Turn()) return failure;
        readOnly.erase(path);
        return {};
    }
    FileResult MakeDirectory(const Text& path) override {
        if (!Turn()) return failure;
        if (files.contains(path) || directories.contains(path)) return {75, "Path/File access error"};
        if (!directories.contains(DirectoryOf(path))) return {76, "Path not found"};
        directories.insert(path);
        return {};
    }
    FileResult ChangeDirectory(const Text& path) override {
        if (!Turn()) return failure;
        if (!directories.contains(Bare(path))) return {76, "Path not found"};
        current = path;
        return {};
    }
    FileResult ChangeDrive(const Text& drive) override {
        if (!Turn()) return failure;
        return EqualText(drive.substr(0, 1), "C") ? FileResult{} : FileResult{68, "Device unavailable"};
    }
    Text CurrentDirectory() override { return current; }

    std::vector<Text> List(const Text& mask) override {
        std::vector<Text> names;
        if (!Turn()) return names;
        const Text directory = DirectoryOf(mask);
        const Text pattern = Upper(mask.substr(directory.size() + 1));
        for (const auto& [path, content] : files)
            if (DirectoryOf(path) == directory) {
                const Text name = path.substr(directory.size() + 1);
                if (Matches(pattern, Upper(name))) names.push_back(name);
            }
        return names;
    }

    Text TemporaryDirectory() override { return temporary; }
    FileResult MakeTemporary(const Text& prefix, Text& path) override {
        if (!Turn()) return failure;
        if (temporary.empty()) return {76, "Path not found"};
        path = temporary + "\\" + prefix + std::to_string(++temporaries_) + ".tmp";
        files[path].clear();
        return {};
    }
    Text ApplicationDirectory() override { return "C:\\bin"; }
    Text SystemErrorText(Long number) override { return number == 53 ? "File not found" : ""; }

private:
    struct Reader : FileReader {
        Reader(MemoryFiles& files, Text text) : owner(files), content(std::move(text)) {}
        FileResult Read(char* buffer, std::size_t size, std::size_t& count) override {
            count = 0;
            if (!owner.Turn()) return owner.failure;
            count = content.copy(buffer, size, at);
            at += count;
            return {};
        }
        MemoryFiles& owner;
        Text content;
        std::size_t at = 0;
    };

    bool Turn() { return ++calls != failAt; }

    template <class Work>
    FileResult WithFile(const Text& path, Work work) {
        if (!Turn()) return failure;
        const auto hit = files.find(path);
        if (hit == files.end()) return {53, "File not found"};
        work(hit->second);
        return {};
    }

    static Text Bare(const Text& path) {
        return path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
    }
    static Text DirectoryOf(const Text& path) {
        return path.substr(0, std::min(path.rfind('\\'), path.size()));
    }
    static bool Matches(TextView mask, TextView name) {
        if (mask.empty()) return name.empty();
        if (mask[0] == '*')
            return Matches(mask.substr(1), name) || (!name.empty() && Matches(mask, name.substr(1)));
        return !name.empty() && (mask[0] == '?' || mask[0] == name[0]) &&
               Matches(mask.substr(1), name.substr(1));
    }

    int temporaries_ = 0;
};

} // namespace ostrel::test

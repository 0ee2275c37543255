#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace ostrel::test {

/// An empty directory for one test, gone with all that is in it at the end.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "ostrel-test-XXXXXX").string();
        if (::mkdtemp(pattern.data())) path_ = pattern;
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    /// The system's path of a file in it.
    std::string Path(std::string_view name = {}) const {
        return name.empty() ? path_ : path_ + "/" + std::string(name);
    }
    /// The component's path of it, for names of plain ASCII.
    std::string Component(std::string_view name = {}) const {
        std::string path = "C:" + Path(name);
        for (char& c : path)
            if (c == '/') c = '\\';
        return path;
    }

    void Write(std::string_view name, std::string_view content) const {
        std::ofstream(Path(name), std::ios::binary) << content;
    }
    std::string Read(std::string_view name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// What lies in it, or in a folder of it; nothing where that is missing.
    std::set<std::string> Names(std::string_view folder = {}) const {
        std::set<std::string> names;
        std::error_code missing;
        for (const auto& entry : std::filesystem::directory_iterator(Path(folder), missing))
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    std::string path_;
};

} // namespace ostrel::test

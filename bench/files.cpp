// bench-files write|compare FOLDER COUNT SIZE: creates so many files of that size in a folder, or reads them
// again and compares.

#include <cstdlib>

#include "plain.h"

namespace {

/// Differs from file to file, as pages of records do.
void Fill(std::string& text, long number) {
    char mark[32];
    const int length = std::snprintf(mark, sizeof mark, "%08ld", number);
    for (std::size_t at = 0; at + 8 <= text.size(); at += 256)
        std::memcpy(text.data() + at, mark, static_cast<std::size_t>(length));
}

} // namespace

int main(int count, char** arguments) {
    if (count < 5) return 2;
    const bool write = std::strcmp(arguments[1], "write") == 0;
    const std::string folder = arguments[2];
    const long files = std::atol(arguments[3]);
    std::string text(static_cast<std::size_t>(std::atol(arguments[4])), 'x');
    std::string found(text.size() + 1, '\0');
    for (long number = 1; number <= files; ++number) {
        Fill(text, number);
        std::FILE* const file =
            std::fopen((folder + "/page_" + std::to_string(number) + ".htm").c_str(), write ? "wb" : "rb");
        if (!file) return 1;
        std::setvbuf(file, nullptr, _IONBF, 0);
        const std::size_t done = write ? std::fwrite(text.data(), 1, text.size(), file)
                                       : std::fread(found.data(), 1, found.size(), file);
        std::fclose(file);
        if (done != text.size() || (!write && std::memcmp(text.data(), found.data(), done) != 0)) return 1;
    }
    return 0;
}

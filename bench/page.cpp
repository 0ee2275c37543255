// bench-page INPUT OUTPUT: parses a CSV file and streams a page with rows of the same bytes as the
// component's.

#include "plain.h"

int main(int count, char** arguments) {
    if (count < 3) return 2;
    std::FILE* const input = std::fopen(arguments[1], "rb");
    std::FILE* const output = std::fopen(arguments[2], "wb");
    if (!input || !output) return 1;

    constexpr std::size_t block = std::size_t{1} << 18;
    std::string page;
    bool head = true;
    const auto row = [&](const std::vector<std::string_view>& fields) {
        if (head)
            plain::AppendHead(page, fields);
        else
            plain::AppendRow(page, fields, true);
        head = false;
        if (page.size() < block) return;
        std::fwrite(page.data(), 1, page.size(), output);
        page.clear();
    };
    plain::CsvReader reader;
    std::vector<char> buffer(block);
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), input))
        reader.Read({buffer.data(), got}, row);
    reader.Finish(row);
    plain::AppendFoot(page);
    std::fwrite(page.data(), 1, page.size(), output);
    std::fclose(input);
    return std::fclose(output) == 0 ? 0 : 1;
}

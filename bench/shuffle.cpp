// bench-shuffle INPUT OUTPUT: holds the cells of a CSV file in memory, then builds a page of its rows in
// shuffled order and writes it. Prints the CPU seconds of building and writing.

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>

#include "plain.h"

int main(int count, char** arguments) {
    if (count < 3) return 2;
    std::FILE* const input = std::fopen(arguments[1], "rb");
    if (!input) return 1;

    // Cells stand escaped, as the component's do, one behind the other.
    std::string texts;
    std::vector<std::uint32_t> ends;
    std::size_t columns = 0;
    const auto row = [&](const std::vector<std::string_view>& fields) {
        columns = fields.size();
        for (const std::string_view field : fields) {
            plain::AppendEscaped(texts, field);
            ends.push_back(static_cast<std::uint32_t>(texts.size()));
        }
    };
    plain::CsvReader reader;
    std::vector<char> buffer(std::size_t{1} << 18);
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), input))
        reader.Read({buffer.data(), got}, row);
    reader.Finish(row);
    std::fclose(input);

    std::vector<std::uint32_t> order(columns ? ends.size() / columns - 1 : 0);
    std::iota(order.begin(), order.end(), 1u);
    std::shuffle(order.begin(), order.end(), std::mt19937(5));

    const double start = plain::CpuSeconds();
    std::string page;
    page.reserve(texts.size() + ends.size() * 48);
    std::vector<std::string_view> fields(columns);
    const auto fill = [&](std::size_t at) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t cell = at * columns + column;
            const std::size_t begin = cell ? ends[cell - 1] : 0;
            fields[column] = std::string_view(texts).substr(begin, ends[cell] - begin);
        }
    };
    fill(0);
    plain::AppendHead(page, fields);
    for (const std::uint32_t at : order) {
        fill(at);
        plain::AppendRow(page, fields, false);
    }
    plain::AppendFoot(page);
    std::FILE* const output = std::fopen(arguments[2], "wb");
    if (!output) return 1;
    std::fwrite(page.data(), 1, page.size(), output);
    const bool written = std::fclose(output) == 0;
    std::printf("%.6f\n", plain::CpuSeconds() - start);
    return written ? 0 : 1;
}

// bench-report INPUT DIRECTORY: makes the main page and the pages sorted by the first column from arrays in
// the process, and beside each a plain loop that builds the same bytes in memory of the same kind. Prints a
// name and the CPU seconds a line.

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <span>
#include <utility>

#include "control/OstrelWebHelp.h"
#include "plain.h"
#include "plain_sort.h"
#include "platform/headless/HeadlessPlatform.h"
#include "text/LargeBuffer.h"

namespace {

struct Data {
    ostrel::Array<ostrel::Text> names;
    std::vector<ostrel::Text> cells;
    std::size_t columns = 0;
    std::size_t Rows() const { return columns ? cells.size() / columns : 0; }
    std::span<const ostrel::Text> Row(std::size_t row) const {
        return std::span(cells).subspan(row * columns, columns);
    }
};

Data Read(const char* path) {
    Data data;
    std::FILE* const input = std::fopen(path, "rb");
    if (!input) std::exit(1);
    const auto row = [&](const std::vector<std::string_view>& fields) {
        for (const std::string_view field : fields) {
            std::string text;
            plain::AppendEscaped(text, field);
            if (data.columns == 0)
                data.names.Append(std::move(text));
            else
                data.cells.push_back(std::move(text));
        }
        data.columns = fields.size();
    };
    plain::CsvReader reader;
    std::vector<char> buffer(std::size_t{1} << 18);
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), input))
        reader.Read({buffer.data(), got}, row);
    reader.Finish(row);
    std::fclose(input);
    return data;
}

/// The rows in that order, block by block through a text that stays in the cache.
void BuildPlain(const Data& data, const ostrel::Array<ostrel::Long>& order, ostrel::LargeBuffer& page) {
    std::string row;
    plain::AppendHead(row, data.names);
    for (const ostrel::Long number : order) {
        plain::AppendRow(row, data.Row(static_cast<std::size_t>(number) - 1), false);
        if (row.size() < 4096) continue;
        page.Append(row);
        row.clear();
    }
    plain::AppendFoot(row);
    page.Append(row);
}

void WritePlain(const std::string& path, const ostrel::LargeBuffer& page) {
    std::FILE* const output = std::fopen(path.c_str(), "wb");
    if (!output) std::exit(1);
    std::fwrite(page.View().data(), 1, page.View().size(), output);
    std::fclose(output);
}

class Stopwatch {
public:
    /// Seconds since the last lap.
    double Lap() {
        const double now = plain::CpuSeconds();
        return now - std::exchange(last_, now);
    }

private:
    double last_ = plain::CpuSeconds();
};

void Tell(const char* name, double seconds) { std::printf("%s %.6f\n", name, seconds); }

} // namespace

int main(int count, char** arguments) {
    if (count < 3) return 2;
    const Data data = Read(arguments[1]);
    const std::string directory = arguments[2];
    const auto rows = static_cast<ostrel::Long>(data.Rows());
    const auto columns = static_cast<ostrel::Long>(data.columns);

    ostrel::Grid<ostrel::Text> grid(rows, columns);
    std::copy(data.cells.begin(), data.cells.end(), grid.Data());
    ostrel::Array<ostrel::Flag> right;
    for (ostrel::Long i = 0; i < columns; ++i)
        right.Append(static_cast<std::size_t>(i) < plain::RightColumns.size() &&
                     plain::RightColumns[static_cast<std::size_t>(i)] == 'r');
    ostrel::Array<ostrel::Long> order(rows);
    std::iota(order.begin(), order.end(), 1);

    {
        ostrel::LargeBuffer page;
        Stopwatch watch;
        BuildPlain(data, order, page);
        const double made = watch.Lap();
        WritePlain(directory + "/plain.htm", page);
        Tell("plain-made", made);
        Tell("plain", made + watch.Lap());
        const auto text = [&](ostrel::Long number) -> const ostrel::Text& {
            return data.cells[static_cast<std::size_t>(number - 1) * data.columns];
        };
        watch.Lap();
        plain::SortIndex(text, order);
        Tell("plain-sort", watch.Lap());
        page.Clear();
        BuildPlain(data, order, page);
        WritePlain(directory + "/plain-sorted.htm", page);
        Tell("plain-shuffled", watch.Lap());
    }

    ostrel::HeadlessPlatform platform = ostrel::MakeHeadlessPlatform(false);
    platform.pane = nullptr;
    ostrel::Text path = "C:" + directory + "/report.htm";
    std::replace(path.begin(), path.end(), '/', '\\');
    const auto make = [&](const ostrel::Text& file, bool sorted) {
        ostrel::OstrelWebHelp web(platform);
        web.InitProperties();
        web.PageTableHeaderBelow(0);
        web.PageTableColumnSort(1, sorted);
        const char* const stages[] = {"main", "up", "down"};
        std::size_t stage = 0;
        Stopwatch watch;
        web.events.PageCreated.Listen([&](ostrel::Text&) {
            const double seconds = watch.Lap();
            if (sorted && stage < 3) Tell(stages[stage++], seconds);
        });
        ostrel::Text error;
        if (!web.PageCreateTableNoTags(file, "Report", rows, columns, data.names, right, grid, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            std::exit(1);
        }
        if (!sorted) Tell("main-made", watch.Lap());
    };
    make({}, false);
    make(path, true);
    return 0;
}

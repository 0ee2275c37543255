// bench-editing: measures the buffer of an editor against a plain string. Prints lines of a name and a
// figure: seconds of CPU time for one edit, or bytes of memory for one of text.

#include <malloc.h>

#include <algorithm>
#include <functional>
#include <random>

#include "plain.h"
#include "ui/EditBuffer.h"

using namespace ostrel;

namespace {

/// The median of a few turns of so many edits each, for one edit.
double Median(int edits, const std::function<void(int)>& edit) {
    constexpr int turns = 7;
    std::vector<double> times;
    for (int turn = 0; turn < turns; ++turn) {
        const double start = plain::CpuSeconds();
        for (int i = 0; i < edits; ++i) edit(i);
        times.push_back((plain::CpuSeconds() - start) / edits);
    }
    std::sort(times.begin(), times.end());
    return times[turns / 2];
}

void Print(const char* name, Long megabytes, double figure) {
    std::printf("%s.%d %.9f\n", name, megabytes, figure);
    std::fflush(stdout);
}

double Memory() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void Measure(Long megabytes) {
    constexpr TextView line = "<P>The quick brown fox jumps over the <B>lazy</B> dog.</P>\r\n";
    // Room is left below the most that a buffer holds.
    const std::size_t size = (static_cast<std::size_t>(megabytes) << 20) - (std::size_t{1} << 19);
    Text text;
    text.reserve(size + (std::size_t{1} << 16));
    while (text.size() + line.size() <= size) text.append(line);
    const Long middle = static_cast<Long>(text.size() / 2);

    const double before = Memory();
    EditBuffer buffer;
    double start = plain::CpuSeconds();
    buffer.Assign(text);
    const double opening = plain::CpuSeconds() - start;
    start = plain::CpuSeconds();
    const Text copy = text;
    Print("open", megabytes, opening);
    Print("copy", megabytes, plain::CpuSeconds() - start);
    const double copied = static_cast<double>(copy.size());
    Print("memory", megabytes, (Memory() - before - copied) / copied);

    Print("insert-string", megabytes, Median(megabytes > 8 ? 5 : 50, [&](int i) {
              text.insert(static_cast<std::size_t>(middle + i), 1, 'x');
          }));
    const int edits = 250 * megabytes;
    Print("insert", megabytes, Median(edits, [&](int i) { buffer.Replace(middle + i, 0, "x"); }));
    std::mt19937 random(1);
    Print("insert-anywhere", megabytes, Median(edits, [&](int) {
              buffer.Replace(static_cast<Long>(random() % static_cast<std::uint32_t>(middle)), 0, "x");
          }));
    Print("undo", megabytes, Median(edits, [&](int) { buffer.Undo(); }));
    Print("memory-edited", megabytes, (Memory() - before - copied) / copied);
}

} // namespace

int main() {
    for (const Long megabytes : {1, 8, 64}) Measure(megabytes);
}

#include <cstdint>
#include <cstdlib>
#include <string>

#include "tables/CsvReader.h"
#include "tables/InputError.h"

namespace {

using namespace ostrel;
using namespace ostrel::tables;

/// What a reading comes to: every cell with both its texts, or the sentence of what is wrong.
std::string Outcome(std::string_view text, std::size_t chunk) {
    MemorySource source(text);
    CellStore cells;
    std::string outcome;
    try {
        CsvReader reader(source, {',', TextEncoding::Windows1252}, cells, chunk);
        for (std::size_t count = 0; reader.ReadRecord(count);) outcome += std::to_string(count) + "\n";
    } catch (const InputError& error) {
        outcome += error.what();
    }
    for (std::size_t i = 0; i < cells.Count(); ++i) {
        outcome.append(cells.Cells()[i].Plain()) += '\0';
        outcome.append(cells.Cells()[i].Html()) += '\0';
    }
    return outcome;
}

} // namespace

/// Whatever the bytes, nothing crashes, and where a chunk ends makes no difference.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    // The marks of an encoding are looked for in the first chunk.
    if (text.starts_with("\xEF") || text.starts_with("\xFF") || text.starts_with("\xFE")) return 0;
    const std::string whole = Outcome(text, 1 << 16);
    for (std::size_t chunk : {1, 3, 16})
        if (Outcome(text, chunk) != whole) std::abort();
    return 0;
}

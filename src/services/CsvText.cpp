#include "services/CsvText.h"

#include <cstdint>
#include <cstring>

#include "services/FileServices.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

constexpr Long RecordsPerTurn = 50;

/// Up to 8 bytes in one word; fewer than 8 fill it more than once.
std::uint64_t Word(const char* bytes, std::size_t size) {
    std::uint64_t word = 0;
    if (size >= 8) {
        std::memcpy(&word, bytes, 8);
    } else if (size >= 4) {
        std::memcpy(&word, bytes, 4);
        std::uint32_t end;
        std::memcpy(&end, bytes + size - 4, 4);
        word |= std::uint64_t{end} << 32;
    } else {
        const auto at = [&](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(bytes[i])}; };
        word = at(0) | at(size / 2) << 8 | at(size - 1) << 16;
        word |= word << 24 | word << 48;
    }
    return word;
}

/// Whether one of the bytes occurs, looked for in all bytes of a word at once, since most values are short
/// and hold none.
bool HoldsAny(TextView value, const char (&wanted)[4]) {
    constexpr std::uint64_t ones = 0x0101010101010101u, highs = 0x8080808080808080u;
    const char* bytes = value.data();
    for (std::size_t left = value.size(); left > 0;) {
        const std::uint64_t word = Word(bytes, left);
        std::uint64_t hit = 0;
        for (const char c : wanted) {
            const std::uint64_t zeroWhereEqual = word ^ (ones * static_cast<unsigned char>(c));
            hit |= (zeroWhereEqual - ones) & ~zeroWhereEqual & highs;
        }
        if (hit) return true;
        const std::size_t read = left < 8 ? left : 8;
        bytes += read;
        left -= read;
    }
    return false;
}

/// Whether a value must stand in quotes.
bool NeedsQuotes(TextView value, TextView delimiter) {
    const bool oneByte = delimiter.size() == 1 && UpperByte(delimiter[0]) == LowerByte(delimiter[0]);
    if (HoldsAny(value, {'"', '\r', '\n', oneByte ? delimiter[0] : '"'})) return true;
    return !oneByte && !delimiter.empty() && FindText(value, delimiter) != NotFound;
}

/// Gives the value piece by piece, in quotes where it needs them.
template <class Append>
void SpellValue(TextView value, TextView delimiter, Append append) {
    if (!NeedsQuotes(value, delimiter)) {
        append(value);
        return;
    }
    append("\"");
    for (std::size_t quote; (quote = value.find('"')) != NotFound; value.remove_prefix(quote + 1)) {
        append(value.substr(0, quote));
        append("\"\"");
    }
    append(value);
    append("\"");
}

} // namespace

Text WriteFileCSVValue(TextView value, TextView delimiter) {
    Text result;
    SpellValue(value, delimiter, [&](TextView piece) { result.append(piece); });
    return result;
}

bool WriteCsvFile(Context& context, const Text& path, const CsvContent& content, bool createBackup,
                  LargeBuffer& room, Text& error) {
    const TextView delimiter = content.delimiter;
    error.clear();
    if (content.records < 1)
        error = "No Records to write.";
    else if (content.fields < 1)
        error = "No Fields to write.";
    if (!error.empty()) return false;

    room.Clear();
    const auto append = [&](TextView piece) { room.Append(piece); };
    for (Long field = 1; field <= content.fields; ++field) {
        if (field > 1) room.Append(delimiter);
        if (const Text* name = content.names.Find(field)) SpellValue(*name, delimiter, append);
    }
    room.Append(LineEnd);
    for (Long record = 1; record <= content.records; ++record) {
        for (Long field = 1; field <= content.fields; ++field) {
            if (field > 1) room.Append(delimiter);
            SpellValue(content.cell(record, field), delimiter, append);
        }
        room.Append(LineEnd);
        if (record % RecordsPerTurn != 0) continue;
        context.GiveWay();
        if (context.run.Pressed()) {
            error = "Write Interrupted.";
            return false;
        }
    }
    Rope whole;
    whole.Append(nullptr, room.View());
    // As with pages: what has not changed is left alone, and so is its date. A name without a directory is
    // refused below, whatever lies in the current one.
    if (!createBackup && path.find('\\') != NotFound && FileEquals(*context.platform.files, path, whole))
        return true;
    return WriteFileFull(context, path, whole, error, {.createBackup = createBackup});
}

} // namespace ostrel::services

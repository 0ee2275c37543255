#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "tables/ByteSource.h"
#include "tables/CellStore.h"

namespace ostrel::tables {

/// How a CSV input is to be read; what is not given is found out.
struct CsvFormat {
    char delimiter = 0; ///< 0 to find it out
    TextEncoding encoding = TextEncoding::Unknown;
};

/// Reads CSV, record by record, into cells. Records end with LF, CR LF or CR; lines without anything on them
/// are passed over. A value in double quotes may hold delimiters, line breaks and doubled quotes; a quote
/// inside a value that does not begin with one is a plain character, and what follows a closing quote belongs
/// to the value.
///
/// A reader of our own: it finds markup, blanks and bytes outside ASCII in the same scan that finds the ends
/// of the values, stores each value at its final place and knows its line number. The library at
/// hand hands out each value from a buffer of its own, byte by byte, at twice the time; the tests hold the
/// two against each other.
class CsvReader {
public:
    static constexpr std::size_t MaxValueBytes = std::size_t{64} << 20;
    static constexpr std::size_t MaxColumns = 10'000;

    /// Reads `chunk` bytes at a time. Throws `InputError` where the input is empty or UTF-16.
    CsvReader(ByteSource& source, CsvFormat format, CellStore& cells, std::size_t chunk = 1 << 20);

    /// Reads one record; its cells are the last of the store. Returns false at the end of the input. `count`
    /// receives how many. Throws `InputError`.
    bool ReadRecord(std::size_t& count);

    /// The line, from 1, on which the record read last begins.
    std::size_t RecordLine() const { return recordLine_; }
    char Delimiter() const { return format_.delimiter; }
    /// Throws an `InputError` that names the input and the line.
    [[noreturn]] void FailAtLine(std::size_t line, const std::string& sentence) const;

private:
    enum class End { Value, Record, Input };

    void Begin();
    bool Fill();
    bool AtEnd() { return at_ == end_ && !Fill(); }
    bool SkipEmptyLines();
    bool SkipLineFeedDue();
    End ReadValue();
    void ReadQuoted(unsigned& traits);
    unsigned Scan(const CellTraits& kinds, unsigned& traits);
    void EndCell(unsigned traits);
    void SettleEncoding();
    void CheckSize() const;

    ByteSource& source_;
    CsvFormat format_;
    CellStore& cells_;
    CellTraits plainKinds_{}, quotedKinds_{};
    std::size_t chunk_;
    std::unique_ptr<char[]> buffer_;
    const char* at_ = nullptr;
    const char* end_ = nullptr; ///< points to a NUL, which stops every scan
    bool lineFeedDue_ = false;  ///< behind a CR: an LF there belongs to it
    std::size_t line_ = 1;
    std::size_t recordLine_ = 1;
};

} // namespace ostrel::tables

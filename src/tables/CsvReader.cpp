#include "tables/CsvReader.h"

#include "tables/CsvSniffer.h"
#include "tables/InputError.h"

namespace ostrel::tables {

namespace {

constexpr std::uint8_t Stops = 0x80; ///< beside the traits: a byte at which a scan ends

unsigned char Unsigned(char c) { return static_cast<unsigned char>(c); }

} // namespace

CsvReader::CsvReader(ByteSource& source, CsvFormat format, CellStore& cells, std::size_t chunk)
    : source_(source), format_(format), cells_(cells), chunk_(chunk),
      buffer_(std::make_unique_for_overwrite<char[]>(chunk + 1)) {
    at_ = end_ = buffer_.get();
    Begin();
    plainKinds_ = quotedKinds_ = TraitsOfByte;
    for (char c : {format_.delimiter, '\r', '\n', '\0'}) plainKinds_[Unsigned(c)] |= Stops;
    for (char c : {'"', '\r', '\n', '\0'}) quotedKinds_[Unsigned(c)] |= Stops;
}

void CsvReader::Begin() {
    // A pipe may deliver its first bytes one by one; the byte order mark and the delimiter need more.
    std::size_t size = 0;
    while (size < chunk_) {
        const std::size_t count = source_.Read(buffer_.get() + size, chunk_ - size);
        if (count == 0) break;
        size += count;
    }
    end_ = at_ + size;
    buffer_[size] = '\0';
    const std::string_view head(at_, size);
    if (head.empty()) throw InputError(source_.Name() + " is empty.");
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF"))
        throw InputError(source_.Name() +
                         ", line 1: the text is UTF-16; only UTF-8 and Windows-1252 are read.");
    if (head.starts_with("\xEF\xBB\xBF")) {
        at_ += 3;
        if (format_.encoding == TextEncoding::Unknown) format_.encoding = TextEncoding::Utf8;
    }
    if (format_.delimiter == 0) format_.delimiter = SniffDelimiter({at_, end_});
}

bool CsvReader::Fill() {
    const std::size_t count = source_.Read(buffer_.get(), chunk_);
    at_ = buffer_.get();
    end_ = at_ + count;
    buffer_[count] = '\0';
    return count > 0;
}

void CsvReader::FailAtLine(std::size_t line, const std::string& sentence) const {
    throw InputError(source_.Name() + ", line " + std::to_string(line) + ": " + sentence);
}

bool CsvReader::SkipLineFeedDue() {
    if (AtEnd()) return false;
    if (*at_ == '\n' && lineFeedDue_) {
        ++at_;
        lineFeedDue_ = false;
        return !AtEnd();
    }
    lineFeedDue_ = false;
    return true;
}

bool CsvReader::SkipEmptyLines() {
    while (SkipLineFeedDue()) {
        if (*at_ != '\r' && *at_ != '\n') return true;
        lineFeedDue_ = *at_ == '\r';
        ++at_;
        ++line_;
    }
    return false;
}

bool CsvReader::ReadRecord(std::size_t& count) {
    count = 0;
    if (!SkipEmptyLines()) return false;
    recordLine_ = line_;
    for (;;) {
        const std::size_t line = line_; // the value may end it
        const End end = ReadValue();
        if (++count > MaxColumns)
            FailAtLine(line, "the row has more than " + std::to_string(MaxColumns) + " values.");
        if (end != End::Value) return true;
    }
}

/// Moves the bytes up to the next stop into the value in hand. The result is the kind of the stop.
unsigned CsvReader::Scan(const CellTraits& kinds, unsigned& traits) {
    const char* p = at_;
    unsigned seen = traits, kind;
    while (!((kind = kinds[Unsigned(*p)]) & Stops)) {
        seen |= kind;
        ++p;
    }
    traits = seen;
    if (p != at_) cells_.Append(at_, static_cast<std::size_t>(p - at_));
    at_ = p;
    return kind;
}

CsvReader::End CsvReader::ReadValue() {
    unsigned traits = TraitNone;
    if (!AtEnd() && *at_ == '"') {
        ++at_;
        ReadQuoted(traits);
    }
    for (;;) {
        Scan(plainKinds_, traits);
        const char c = *at_;
        if (at_ == end_) {
            CheckSize();
            if (Fill()) continue;
            EndCell(traits);
            return End::Input;
        }
        if (c == '\0') FailAtLine(line_, "there is a NUL byte, so this is not text.");
        ++at_;
        EndCell(traits);
        if (c == format_.delimiter) return End::Value;
        lineFeedDue_ = c == '\r';
        ++line_;
        return End::Record;
    }
}

/// Reads up to and including the closing quote.
void CsvReader::ReadQuoted(unsigned& traits) {
    const std::size_t opened = line_;
    bool afterReturn = false;
    for (;;) {
        const char* const before = at_;
        Scan(quotedKinds_, traits);
        if (at_ != before) afterReturn = false;
        const char c = *at_;
        if (at_ == end_) {
            CheckSize();
            if (Fill()) continue;
            FailAtLine(opened, "the quote that opens a value here is not closed.");
        }
        if (c == '\0') FailAtLine(line_, "there is a NUL byte, so this is not text.");
        ++at_;
        if (c == '"') {
            if (AtEnd() || *at_ != '"') return;
            ++at_;
            traits |= TraitMarkup;
        } else {
            traits |= TraitBreak;
            line_ += c == '\r' || !afterReturn;
        }
        afterReturn = c == '\r';
        cells_.Append(&c, 1);
    }
}

void CsvReader::CheckSize() const {
    if (cells_.Pending().size() > MaxValueBytes) FailAtLine(recordLine_, "a value is larger than 64 MiB.");
}

void CsvReader::EndCell(unsigned traits) {
    if (traits & TraitHigh) SettleEncoding();
    CheckSize();
    if (!cells_.EndCell(traits, format_.encoding))
        FailAtLine(recordLine_, "a value is not UTF-8; --encoding windows-1252 may be what it is.");
}

void CsvReader::SettleEncoding() {
    if (format_.encoding != TextEncoding::Unknown) return;
    // Look at this value and the rest of the chunk only, so that nothing is read twice.
    std::string sample(cells_.Pending());
    sample.append(at_, end_);
    format_.encoding = GuessEncoding(sample);
}

} // namespace ostrel::tables

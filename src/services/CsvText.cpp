#include "services/CsvText.h"

#include "services/FileServices.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

constexpr std::size_t PieceSize = std::size_t{1} << 20;
constexpr Long RecordsPerTurn = 50;

/// Whether a value must stand in quotes.
bool NeedsQuotes(TextView value, TextView delimiter) {
    const unsigned char mark = delimiter.size() == 1 ? UpperByte(delimiter[0]) : '"';
    for (const char c : value)
        if (c == '"' || c == '\r' || c == '\n' || UpperByte(c) == mark) return true;
    return delimiter.size() > 1 && FindText(value, delimiter) != NotFound;
}

/// Collects the text of a file in pieces, so that no large text has to grow.
class Pieces {
public:
    Text& Current() { return current_; }
    void FoldWhenFull() {
        if (current_.size() >= PieceSize) Fold();
    }
    const Rope& Whole() {
        rope_.Append(std::move(current_));
        return rope_;
    }

private:
    void Fold() {
        rope_.Append(std::move(current_));
        current_ = Text();
        current_.reserve(PieceSize + PieceSize / 8);
    }

    Rope rope_;
    Text current_;
};

} // namespace

void AppendCsvValue(Text& output, TextView value, TextView delimiter) {
    if (!NeedsQuotes(value, delimiter)) {
        output.append(value);
        return;
    }
    output += '"';
    for (const char c : value) {
        if (c == '"') output += '"';
        output += c;
    }
    output += '"';
}

Text WriteFileCSVValue(TextView value, TextView delimiter) {
    Text result;
    AppendCsvValue(result, value, delimiter);
    return result;
}

bool WriteCsvFile(Context& context, const Text& title, const Text& path, const Array<Text>& names,
                  const CsvCell& cell, Long records, Long fields, Text& error, const Text& delimiter,
                  bool createBackup) {
    error.clear();
    if (records < 1)
        error = "No Records to write.";
    else if (fields < 1)
        error = "No Fields to write.";
    if (!error.empty()) return false;

    Pieces pieces;
    for (Long field = 1; field <= fields; ++field) {
        if (field > 1) pieces.Current() += delimiter;
        if (const Text* name = names.Find(field)) AppendCsvValue(pieces.Current(), *name, delimiter);
    }
    pieces.Current() += LineEnd;
    for (Long record = 1; record <= records; ++record) {
        for (Long field = 1; field <= fields; ++field) {
            if (field > 1) pieces.Current() += delimiter;
            AppendCsvValue(pieces.Current(), cell(record, field), delimiter);
        }
        pieces.Current() += LineEnd;
        pieces.FoldWhenFull();
        if (record % RecordsPerTurn != 0) continue;
        context.GiveWay();
        if (context.run.Stopped()) {
            error = "Write Interrupted.";
            return false;
        }
    }
    return WriteFileFull(context, title, path, pieces.Whole(), error, {createBackup, false, true});
}

} // namespace ostrel::services

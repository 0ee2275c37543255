#include "html/TableWriter.h"

#include <cstring>

#include "html/Elements.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::html {

namespace {

constexpr TextView CellStart = "<TD>";
constexpr TextView CellEnd = "</TD>";
constexpr TextView CellLineEnd = "</TD>\r\n";
constexpr TextView FontEnd = "</FONT>";
constexpr TextView RowEnd = "</TR>\r\n\r\n";
constexpr TextView BodyStart = "<TBODY>\r\n\r\n";
constexpr TextView BodyEnd = "</TBODY>\r\n\r\n";
constexpr TextView DefaultTableTags = R"(CELLSPACING="0" CELLPADDING="0" BORDER="0")";
constexpr int RowsBetweenYields = 50;

template <std::size_t Half>
char* PutTwoHalves(char* at, TextView text) {
    std::memcpy(at, text.data(), Half);
    std::memcpy(at + text.size() - Half, text.data() + text.size() - Half, Half);
    return at + text.size();
}

/// Most texts of a cell are short; two overlapping halves spare them the call.
char* Put(char* at, TextView text) {
    const std::size_t size = text.size();
    if (size > 16) {
        std::memcpy(at, text.data(), size);
        return at + size;
    }
    if (size >= 8) return PutTwoHalves<8>(at, text);
    if (size >= 4) return PutTwoHalves<4>(at, text);
    for (const char c : text) *at++ = c;
    return at;
}

TextView StartOf(const TagInfo* tags) { return tags ? TextView(tags->cellStart) : CellStart; }

} // namespace

TableWriter::TableWriter(const Context& context, LargeBuffer& output, Long columns, const TableLook& look)
    : context_(context), output_(output), columns_(columns > 0 ? static_cast<std::size_t>(columns) : 0),
      spaceColumns_(look.spaceColumns), font_(look.font),
      rowStart_(CreateTableRowStart(look.rowTags).append(LineEnd)),
      spacerContent_(InFont(look.spaceCellHTML.empty() ? CreateSpaces(2) : look.spaceCellHTML)),
      blankContent_(InFont(look.emptyCellHTML.empty() ? CreateSpaces(1) : look.emptyCellHTML)),
      columnUsed_(columns_), spacerUsed_(columns_), usedFrom_(columns_), rowsToYield_(RowsBetweenYields) {
    output_.Append(CreateTableStart(look.tableTags.empty() ? DefaultTableTags : TextView(look.tableTags)));
    output_.Append(LineGap);
    emptyRow_ = "<TD COLSPAN = \"";
    AppendLong(emptyRow_,
               spaceColumns_ ? 2 * static_cast<long long>(columns_) - 1 : static_cast<long long>(columns_));
    emptyRow_.append("\">").append(look.rowTags.empty() ? TextView(blankContent_) : CellEnd).append(LineEnd);
}

void TableWriter::BeginGroup(TextView start, TextView end) {
    EndGroup();
    output_.Append(start);
    groupEnd_ = end;
}

void TableWriter::EndGroup() {
    output_.Append(groupEnd_);
    groupEnd_ = {};
    rowsInGroup_ = 0;
}

void TableWriter::BeginHeader() {
    if (groupRows_ <= 0) return;
    // A browser moves THEAD in front of all rows, so what stands above the header must be in it or not be.
    if (anyRow_)
        BeginGroup("<TBODY CLASS=\"header\">\r\n\r\n", BodyEnd);
    else
        BeginGroup("<THEAD>\r\n\r\n", "</THEAD>\r\n\r\n");
}

void TableWriter::Row(std::span<const CellView> cells) {
    if (groupRows_ > 0 && (groupEnd_.empty() || rowsInGroup_ >= groupRows_)) BeginGroup(BodyStart, BodyEnd);
    ++rowsInGroup_;
    anyRow_ = true;
    output_.Append(rowStart_);
    cells = cells.first(std::min(cells.size(), columns_));
    // One column is never merged into a blank row.
    if (columns_ < 2 || std::any_of(cells.begin(), cells.end(), [](const CellView& c) { return !c.Empty(); }))
        ValueRow(cells);
    else if (std::any_of(cells.begin(), cells.end(), [](const CellView& c) { return c.tags != nullptr; }))
        TagRow(cells);
    else
        EmptyRow();
    output_.Append(RowEnd);
    if (--rowsToYield_ > 0) return;
    rowsToYield_ = RowsBetweenYields;
    context_.GiveWay();
}

void TableWriter::End() {
    EndGroup();
    output_.Append("</TABLE>");
}

void TableWriter::ValueRow(std::span<const CellView> cells) {
    const CellView none;
    const auto cellAt = [&](std::size_t column) -> const CellView& {
        return column < cells.size() ? cells[column] : none;
    };
    Long blanks = 0;
    std::size_t c = 0;
    std::size_t behind = 0; // the first column behind the cells that this row comes to
    for (const std::size_t end = std::max(cells.size(), usedFrom_); c < end;) {
        const CellView& cell = cellAt(c);
        const std::size_t span = SpanOf(cell.tags);
        if (!cell.Empty()) {
            FlushBlanks(blanks);
            ValueCell(cell);
            columnUsed_[c] = true;
        } else if (!columnUsed_[c]) {
            FlushBlanks(blanks);
            output_.Append(StartOf(cell.tags));
            output_.Append(blankContent_);
            columnUsed_[c] = true;
        } else if (cell.tags) {
            FlushBlanks(blanks);
            output_.Append(cell.tags->cellStart);
            output_.Append(CellEnd);
        } else {
            ++blanks;
        }
        const std::size_t next = c + span;
        if (spaceColumns_ && next < columns_) {
            const TagInfo* tags = cellAt(next).tags;
            const TextView spacer = tags ? TextView(tags->spacer) : TextView();
            if (!spacerUsed_[c]) {
                FlushBlanks(blanks);
                output_.Append(spacer.empty() ? CellStart : spacer);
                output_.Append(spacerContent_);
                // A spacer behind a wide cell stands elsewhere in other rows.
                if (span == 1) spacerUsed_[c] = true;
            } else if (!spacer.empty()) {
                FlushBlanks(blanks);
                output_.Append(spacer);
                output_.Append(CellEnd);
            } else {
                ++blanks;
            }
        }
        if (c < cells.size()) behind = next;
        c = next;
    }
    blanks += BlanksFrom(c);
    usedFrom_ = std::min(usedFrom_, behind);
    FlushBlanks(blanks);
}

void TableWriter::EmptyRow() { output_.Append(emptyRow_); }

void TableWriter::TagRow(std::span<const CellView> cells) {
    Long blanks = 0;
    const auto write = [&](TextView start) {
        if (start.empty()) {
            ++blanks;
            return;
        }
        FlushBlanks(blanks);
        output_.Append(start);
        output_.Append(CellEnd);
    };
    std::size_t c = 0;
    while (c < cells.size()) {
        const TagInfo* tags = cells[c].tags;
        write(tags ? TextView(tags->cellStart) : TextView());
        c += SpanOf(tags);
        if (!spaceColumns_ || c >= columns_) continue;
        const TagInfo* behind = c < cells.size() ? cells[c].tags : nullptr;
        write(behind ? TextView(behind->spacer) : TextView());
    }
    blanks += BlanksFrom(c);
    FlushBlanks(blanks);
}

void TableWriter::ValueCell(const CellView& cell) {
    const TextView start = StartOf(cell.tags);
    const bool inFont = !font_.empty() && !HasFont(cell);
    char* const first =
        output_.Grow(start.size() + font_.size() + cell.Size() + FontEnd.size() + CellLineEnd.size());
    char* at = Put(first, start);
    if (inFont) at = Put(at, font_);
    at = Put(at, cell.before);
    at = Put(at, cell.value);
    at = Put(at, cell.after);
    if (inFont) at = Put(at, FontEnd);
    at = Put(at, CellLineEnd);
    output_.Commit(static_cast<std::size_t>(at - first));
}

bool TableWriter::HasFont(const CellView& cell) const {
    const TextView first = !cell.before.empty() ? cell.before : !cell.value.empty() ? cell.value : cell.after;
    if (UpperByte(first[0]) != UpperByte(font_[0])) return false;
    Text whole(cell.before);
    whole.append(cell.value).append(cell.after);
    return StartsWithText(whole, font_) && EndsWithText(whole, FontEnd);
}

void TableWriter::FlushBlanks(Long& blanks) {
    if (blanks == 0) return;
    // Between neighbours that are both filled there is one spacer at most.
    if (blanks == 1 || keepBlankCells_) {
        for (; blanks > 0; --blanks) output_.Append("<TD></TD>\r\n");
        return;
    }
    Text run;
    CreateTableAddBlanks(run, blanks);
    output_.Append(run);
}

Long TableWriter::BlanksFrom(std::size_t column) const {
    if (column >= columns_) return 0;
    const std::size_t count = columns_ - column;
    return static_cast<Long>(spaceColumns_ ? 2 * count - 1 : count);
}

std::size_t TableWriter::SpanOf(const TagInfo* tags) const {
    return !tags ? 1 : static_cast<std::size_t>(spaceColumns_ ? tags->spaced : tags->span);
}

Text TableWriter::InFont(TextView cell) const {
    return CreateTableCell({}, font_, cell).substr(CellStart.size());
}

} // namespace ostrel::html

#include "tablepages/RecordPainter.h"

namespace ostrel::tablepages {

namespace {

/// Tags that differ from cell to cell need not be kept for the whole table.
constexpr std::size_t MostTagsKept = 4096;

} // namespace

RecordPainter::RecordPainter(const ReportFrame& frame, const MainTable& main)
    : frame_(frame), main_(main), texts_(frame), cells_(frame.columns.shown.size()) {
    const TableOptions& options = frame.options;
    columns_.reserve(frame.columns.shown.size());
    for (const Long source : frame.columns.shown) {
        Column& column = columns_.emplace_back();
        column.source = source;
        column.grid = static_cast<Long>(columns_.size());
        column.ofRecord = !options.PageTableColumnSubRecord.Get(source);
        column.placement = {source == 0 || frame.input.right.Get(source), frame.align.bodyAlign,
                            frame.align.bodyVAlign, true};
        column.width = options.PageTableColumnWidth.Get(source);
        column.plain = MakeTags(kept_, column, {});
        column.plainCells = source > 0 && column.width.empty() && !texts_.Linked(source);
    }
}

Text RecordPainter::TagText(const Column& column, TextView given, bool filled, Long record) const {
    Text tag(given);
    CellRules::SetTag(!filled, tag, column.placement);
    frame_.rules.CellColour(tag, record, column.grid, column.source);
    return tag;
}

RecordPainter::Tags RecordPainter::MakeTags(html::TagTable& table, const Column& column,
                                            TextView given) const {
    Tags tags;
    for (const bool filled : {false, true})
        for (const bool odd : {false, true})
            tags[filled][odd] = table.Intern(TagText(column, given, filled, odd ? 1 : 2));
    return tags;
}

const html::TagInfo* RecordPainter::DataTag(Column& column, TextView given, bool filled, Long record) {
    if (given.empty()) return column.plain[filled][record % 2 != 0];
    if (column.given != given) {
        column.ofGiven = MakeTags(passing_, column, given);
        column.given = given;
    }
    return column.ofGiven[filled][record % 2 != 0];
}

html::CellView RecordPainter::DataCell(Column& column, Long place, Long record) {
    const RecordGrid::Row row = main_.grid.At(place);
    const CellTexts::Pieces text = column.source == 0 ? texts_.RecordNumber(row.source, row.sub <= 1)
                                                      : texts_.Data(row.source, column.source);
    const bool filled = !text.Empty();
    html::CellView cell{text.before, text.value, text.after, nullptr};
    const TextView given = column.source == 0 ? main_.grid.RecordTag(place, row.source)
                                              : frame_.input.tags.Html(row.source, column.source);
    if (!column.width.empty()) {
        if (filled && column.widthRow == 0) column.widthRow = row.source;
        if (filled && column.widthRow == row.source) {
            Text tag(given);
            CellRules::SetTag(false, tag, column.placement);
            tag = "WIDTH=\"" + column.width + (tag.empty() ? "\"" : "\" " + tag);
            frame_.rules.CellColour(tag, record, column.grid, column.source);
            cell.tags = passing_.Intern(tag);
            return cell;
        }
    }
    cell.tags = DataTag(column, given, filled, record);
    return cell;
}

const GridRow& RecordPainter::TextRow(Long place) {
    if (!textKnown_ || textPlace_ != place) {
        textRow_ = main_.RowAt(place);
        textPlace_ = place;
        textKnown_ = true;
    }
    return textRow_;
}

html::CellView RecordPainter::TextCell(const Column& column, const GridRow& row, Long record) {
    const GridCell* cell = row.Find(column.grid);
    if (!cell) return {};
    Text tag = cell->saved;
    frame_.rules.CellColour(tag, record, column.grid, column.source);
    return {{}, cell->text, {}, passing_.Intern(tag)};
}

void RecordPainter::FillRow(Long place, Long record) {
    const RecordGrid::Row row = main_.grid.At(place);
    const CellTable& given = frame_.input.tags;
    const bool anyGiven = given.Rows() > 0, odd = record % 2 != 0;
    html::CellView* cell = cells_.data();
    for (Column& column : columns_) {
        if (!column.plainCells || (anyGiven && !given.Html(row.source, column.source).empty())) {
            *cell++ = DataCell(column, place, record);
            continue;
        }
        const TextView value = frame_.input.cells.Html(row.source, column.source);
        if (texts_.Filled(value))
            *cell++ = {texts_.Before(), value, texts_.After(), column.plain[true][odd]};
        else
            *cell++ = {{}, {}, {}, column.plain[false][odd]};
    }
}

/// A row of which some cells come from elsewhere or are texts.
void RecordPainter::FillMixedRow(Long place, Long first, Long record) {
    const bool text = main_.IsText(place), firstText = first != place && main_.IsText(first);
    for (Column& column : columns_) {
        const bool own = first == place || !column.ofRecord;
        html::CellView& cell = cells_[static_cast<std::size_t>(column.grid - 1)];
        if (own ? text : firstText)
            cell = TextCell(column, TextRow(own ? place : first), record);
        else
            cell = DataCell(column, own ? place : first, record);
    }
}

void RecordPainter::PaintTop(html::TableWriter& table, const GridRows& rows) {
    table.GroupRows(frame_.options.PageTableRowGroup);
    table.KeepBlankCells(frame_.options.PageTableBlankCells);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool header = main_.headerRow == i;
        if (header) table.BeginHeader();
        Paint(table, rows[i]);
        if (header) table.EndHeader();
    }
}

void RecordPainter::Paint(html::TableWriter& table, Long place, Long first, Long record) {
    if (passing_.Size() > MostTagsKept) {
        for (Column& column : columns_) column.given = {};
        passing_.Clear();
    }
    if (first == place && !main_.IsText(place))
        FillRow(place, record);
    else
        FillMixedRow(place, first, record);
    if (!exposed_.empty()) {
        const bool own = first == place || !columns_[static_cast<std::size_t>(exposedColumn_ - 1)].ofRecord;
        html::CellView& cell = cells_[static_cast<std::size_t>(exposedColumn_ - 1)];
        cell.before = ExposedBefore(own ? place : first, cell.before);
    }
    table.Row(cells_);
}

TextView RecordPainter::ExposedBefore(Long place, TextView before) {
    const auto exposed = exposed_.find(place);
    if (exposed == exposed_.end()) return before;
    exposedBefore_ = exposed->second;
    return exposedBefore_.append(before);
}

CellTexts::Pieces RecordPainter::CellText(Long place, Long gridColumn) {
    const Column& column = columns_[static_cast<std::size_t>(gridColumn - 1)];
    CellTexts::Pieces text;
    if (main_.IsText(place)) {
        if (const GridCell* cell = TextRow(place).Find(gridColumn)) text.value = cell->text;
    } else {
        const RecordGrid::Row row = main_.grid.At(place);
        text = column.source == 0 ? texts_.RecordNumber(row.source, row.sub <= 1)
                                  : texts_.Data(row.source, column.source);
    }
    if (gridColumn == exposedColumn_ && !exposed_.empty()) text.before = ExposedBefore(place, text.before);
    return text;
}

void RecordPainter::Expose(Long gridColumn, Long place, const Text& prefix) {
    exposedColumn_ = gridColumn;
    exposed_[place].insert(0, prefix);
}

} // namespace ostrel::tablepages

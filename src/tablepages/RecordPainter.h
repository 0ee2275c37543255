#pragma once

#include <array>
#include <unordered_map>

#include "html/TableWriter.h"
#include "tablepages/CellTexts.h"
#include "tablepages/GridRowWriter.h"
#include "tablepages/MainTable.h"

namespace ostrel::tablepages {

/// Writes the rows of a table straight from the source cells: texts, tags and colours. What the cells of a
/// column have in common is worked out once.
class RecordPainter {
public:
    RecordPainter(const ReportFrame& frame, const MainTable& main);

    /// Writes the row at a place of the main table; `record` decides its colours. The columns that stay the
    /// same within a record are taken from the place `first`.
    void Paint(html::TableWriter& table, Long place, Long first, Long record);
    /// Writes the rows in front of the first data row, and settles how the rows of the page are grouped.
    void PaintTop(html::TableWriter& table, const GridRows& rows);
    template <class Rows>
    void Paint(html::TableWriter& table, const Rows& rows) {
        writer_.Write(table, rows);
    }

    /// The text of one cell of the main table, good until the next call.
    CellTexts::Pieces CellText(Long place, Long gridColumn);
    CellTexts& Texts() { return texts_; }
    /// Puts a text in front of the cell of a column at a place, until `EndExposing`. One column at a time.
    void Expose(Long gridColumn, Long place, const Text& prefix);
    void EndExposing() { exposed_.clear(); }

private:
    using Tags = std::array<std::array<const html::TagInfo*, 2>, 2>; // [filled][odd record]

    struct Column {
        Long source = 0;
        Long grid = 0;
        bool ofRecord = true;    ///< the same in all rows of a record
        bool plainCells = false; ///< neither links nor a width, nor the record number
        CellRules::Placement placement;
        Text width;        ///< stated by the first filled cell
        Long widthRow = 0; ///< the source row of that cell
        Tags plain{};      ///< of cells without tags of their own
        TextView given;    ///< the tags met last, and what came of them
        Tags ofGiven{};
    };

    void FillRow(Long place, Long record);
    void FillMixedRow(Long place, Long first, Long record);
    html::CellView DataCell(Column& column, Long place, Long record);
    html::CellView TextCell(const Column& column, const GridRow& row, Long record);
    const html::TagInfo* DataTag(Column& column, TextView given, bool filled, Long record);
    Tags MakeTags(html::TagTable& table, const Column& column, TextView given) const;
    Text TagText(const Column& column, TextView given, bool filled, Long record) const;
    const GridRow& TextRow(Long place);
    /// The exposed text and what stands in front of the cell anyway.
    TextView ExposedBefore(Long place, TextView before);

    const ReportFrame& frame_;
    const MainTable& main_;
    CellTexts texts_;
    std::vector<Column> columns_;
    std::vector<html::CellView> cells_;
    html::TagTable kept_, passing_;
    GridRowWriter writer_;
    GridRow textRow_{0};
    Long textPlace_ = 0;
    bool textKnown_ = false;
    Long exposedColumn_ = 0;
    std::unordered_map<Long, Text> exposed_; ///< by place
    Text exposedBefore_;
};

} // namespace ostrel::tablepages

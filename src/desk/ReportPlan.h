#pragma once

#include <QString>
#include <vector>

#include "tables/ColumnTypes.h"
#include "tables/InputTable.h"

namespace ostrel::desk {

/// What becomes of one column.
struct ColumnChoice {
    tables::ColumnType kind = tables::ColumnType::Text;  ///< what it is taken for
    tables::ColumnType found = tables::ColumnType::Text; ///< what all its values are
    bool show = true;
    bool sort = true;
    bool total = false;

    /// A sum of values that are no numbers would be wrong without a word.
    bool Countable() const {
        return kind == found && (kind == tables::ColumnType::Number || kind == tables::ColumnType::Time);
    }
    bool Sorted() const { return show && sort; }
    bool Totalled() const { return show && total && Countable(); }
};

/// The options of the component end at this column; those behind it are shown and have no pages.
inline constexpr auto ColumnReach = static_cast<std::size_t>(tables::ColumnReach);

/// The user's options for a report.
struct ReportPlan {
    QString title;
    QString directory;
    std::vector<ColumnChoice> columns;
    bool subTotals = false;
    bool records = false; ///< a page for each record
    int recordName = 0;   ///< the column whose value names a record, from 1; 0 for its number
    bool csvAll = false, recordsAll = false; ///< with the columns that are not shown

    bool AnyTotal() const;
    qint64 ShownColumns() const;
    /// Whether the value of that column, from 1, can name the records: what is not shown must not come out
    /// so.
    bool MayNameRecords(int column) const;
    /// Pages of all records, and those of one record each.
    qint64 TablePages() const;
    qint64 RecordPages(Long rows) const { return records ? rows : 0; }
};

/// Returns the default plan of a table.
ReportPlan FirstPlan(const tables::InputTable& table);

/// A plan as ASCII that settings may hold. Columns are known by their names, so that it also serves a file
/// that has changed; kinds are found anew.
Text PlanText(const ReportPlan& plan, const tables::InputTable& table);
/// Takes over what of such a text fits the table.
void ApplyPlanText(TextView text, const tables::InputTable& table, ReportPlan& plan);

} // namespace ostrel::desk

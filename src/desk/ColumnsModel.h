#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include "desk/ReportPlan.h"

namespace ostrel::desk {

/// The columns of a table with the options of each. The first row edits all columns at once.
class ColumnsModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Section { NameSection, KindSection, ShowSection, SortSection, TotalSection, SectionCount };

    using QAbstractTableModel::QAbstractTableModel;

    void Fill(QStringList names, std::vector<ColumnChoice> choices);
    const std::vector<ColumnChoice>& Choices() const { return choices_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// Whether the choice can be made of that column.
    bool Open(std::size_t column, int section) const;
    bool& Mark(std::size_t column, int section);
    bool Mark(std::size_t column, int section) const {
        return const_cast<ColumnsModel*>(this)->Mark(column, section);
    }
    Qt::CheckState State(int row, int section) const;
    bool AnyOpen(int section) const;
    void TellAllChanged();

    QStringList names_;
    std::vector<ColumnChoice> choices_;
};

/// The name of a kind of column.
QString KindName(tables::ColumnType kind);

} // namespace ostrel::desk

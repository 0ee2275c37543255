#include "desk/ColumnsModel.h"

#include <QFont>
#include <array>

namespace ostrel::desk {

QString KindName(tables::ColumnType kind) {
    switch (kind) {
    case tables::ColumnType::Number:
        return "Number";
    case tables::ColumnType::Date:
        return "Date";
    case tables::ColumnType::Time:
        return "Time";
    case tables::ColumnType::Text:
        break;
    }
    return "Text";
}

void ColumnsModel::Fill(QStringList names, std::vector<ColumnChoice> choices) {
    beginResetModel();
    names_ = std::move(names);
    choices_ = std::move(choices);
    endResetModel();
}

int ColumnsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || choices_.empty() ? 0 : static_cast<int>(choices_.size()) + 1;
}

int ColumnsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : SectionCount; }

bool ColumnsModel::Open(std::size_t column, int section) const {
    const ColumnChoice& choice = choices_[column];
    if (column >= ColumnReach) return false;
    switch (section) {
    case ShowSection:
        return true;
    case SortSection:
        return choice.show;
    case TotalSection:
        return choice.show && choice.Countable();
    default:
        return false;
    }
}

bool& ColumnsModel::Mark(std::size_t column, int section) {
    ColumnChoice& choice = choices_[column];
    return section == ShowSection ? choice.show : section == SortSection ? choice.sort : choice.total;
}

bool ColumnsModel::AnyOpen(int section) const {
    for (std::size_t i = 0; i < choices_.size(); ++i)
        if (Open(i, section)) return true;
    return false;
}

Qt::CheckState ColumnsModel::State(int row, int section) const {
    if (row > 0) {
        const auto column = static_cast<std::size_t>(row - 1);
        // What is out of reach is always shown and never has pages or a total.
        if (column >= ColumnReach) return section == ShowSection ? Qt::Checked : Qt::Unchecked;
        return Open(column, section) && Mark(column, section) ? Qt::Checked : Qt::Unchecked;
    }
    bool marked = false, unmarked = false;
    for (std::size_t i = 0; i < choices_.size(); ++i)
        if (Open(i, section)) (Mark(i, section) ? marked : unmarked) = true;
    return marked && unmarked ? Qt::PartiallyChecked : marked ? Qt::Checked : Qt::Unchecked;
}

QVariant ColumnsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int row = index.row(), section = index.column();
    if (role == Qt::CheckStateRole && section >= ShowSection) {
        if (section == TotalSection && !flags(index).testFlag(Qt::ItemIsEnabled)) return {};
        return State(row, section);
    }
    if (role == Qt::FontRole && row == 0) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    if (row == 0)
        return role == Qt::DisplayRole && section == NameSection ? QVariant("All columns") : QVariant();
    const auto column = static_cast<std::size_t>(row - 1);
    if (role == Qt::ToolTipRole && column >= ColumnReach)
        return QString("The options of a report reach the first %1 columns.").arg(ColumnReach);
    if (role == Qt::ToolTipRole && section == TotalSection && !choices_[column].Countable())
        return "Only a column whose values are all numbers, or all times, can be summed.";
    if (section == NameSection && (role == Qt::DisplayRole || role == Qt::ToolTipRole))
        return names_[row - 1];
    if (section == KindSection && role == Qt::DisplayRole) return KindName(choices_[column].kind);
    if (section == KindSection && role == Qt::EditRole) return static_cast<int>(choices_[column].kind);
    return {};
}

bool ColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || !(flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) return false;
    const int row = index.row(), section = index.column();
    if (role == Qt::EditRole && section == KindSection) {
        choices_[static_cast<std::size_t>(row - 1)].kind = static_cast<tables::ColumnType>(value.toInt());
    } else if (role == Qt::CheckStateRole && section >= ShowSection) {
        const bool marked = value.toInt() == Qt::Checked;
        for (std::size_t i = 0; i < choices_.size(); ++i)
            if ((row == 0 || static_cast<int>(i) == row - 1) && Open(i, section)) Mark(i, section) = marked;
    } else {
        return false;
    }
    TellAllChanged();
    return true;
}

/// One choice opens and closes others, and the row of all columns follows.
void ColumnsModel::TellAllChanged() {
    emit dataChanged(index(0, 0), index(rowCount() - 1, SectionCount - 1));
}

Qt::ItemFlags ColumnsModel::flags(const QModelIndex& index) const {
    const int row = index.row(), section = index.column();
    const auto column = static_cast<std::size_t>(row - 1);
    if (section == NameSection) return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (section == KindSection) {
        if (row == 0) return Qt::ItemIsEnabled;
        return column < ColumnReach ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable
                                    : Qt::ItemFlags(Qt::NoItemFlags);
    }
    const bool open = row == 0 ? AnyOpen(section) : Open(column, section);
    return open ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                : Qt::ItemFlags(Qt::NoItemFlags);
}

QVariant ColumnsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    static const std::array<const char*, SectionCount> names{"Column", "Kind", "Show", "Sort", "Total"};
    static const std::array<const char*, SectionCount> tips{
        "", "What the column holds, which settles how it is sorted", "The column is part of the report",
        "A click on the column's header sorts the report", "The column is summed"};
    if (role == Qt::DisplayRole) return names[static_cast<std::size_t>(section)];
    if (role == Qt::ToolTipRole) return tips[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole)
        return int(section >= ShowSection ? Qt::AlignHCenter | Qt::AlignVCenter
                                          : Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

} // namespace ostrel::desk

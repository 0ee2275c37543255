#include <QHeaderView>
#include <QTableWidget>
#include <algorithm>

#include "desktop/LineList.h"
#include "desktop/QtText.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

class ShownListBox final : public ShownControl {
public:
    ShownListBox(ListBox& list, LineList& lines, UserActions& user)
        : ShownControl(list, lines, Room::List), list_(list), lines_(lines) {
        lines.onPick = [&list, &user](int line) { user.Act(list, [&] { list.Enter(Long{line}); }); };
        lines.onDoublePress = [&list, &user] { user.Act(list, [&] { list.DoublePress(); }); };
    }

protected:
    void SyncContent() override {
        if (items_.Follow(list_.items)) {
            QStringList shown;
            for (const Text& item : *list_.items) shown += ToQt(item);
            lines_.Fill(shown);
        }
        if (lines_.currentRow() != list_.index) lines_.setCurrentRow(list_.index);
    }

private:
    ListBox& list_;
    LineList& lines_;
    ShownRevision items_;
};

/// Rows to read, under a header that stays. The last column takes what the others leave.
class GridTable final : public QTableWidget {
public:
    explicit GridTable(QWidget* parent) : QTableWidget(parent) {
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setAlternatingRowColors(true);
        setShowGrid(false);
        setWordWrap(false);
        setTabKeyNavigation(false);
        verticalHeader()->hide();
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
        horizontalHeader()->setHighlightSections(false);
        horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        horizontalHeader()->setStretchLastSection(true);
    }

    void Fill(const std::vector<std::vector<Text>>& rows) {
        clear();
        std::size_t columns = 0;
        for (const auto& row : rows) columns = std::max(columns, row.size());
        setColumnCount(static_cast<int>(columns));
        setRowCount(std::max(0, static_cast<int>(rows.size()) - 1));
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                const bool there = column < rows[row].size();
                auto* item = new QTableWidgetItem(there ? ToQt(rows[row][column]) : QString());
                if (row == 0)
                    setHorizontalHeaderItem(static_cast<int>(column), item);
                else
                    setItem(static_cast<int>(row) - 1, static_cast<int>(column), item);
            }
        }
        resizeColumnsToContents();
        updateGeometry();
    }

    QSize sizeHint() const override {
        const int lines = std::clamp(rowCount(), 6, 16);
        int across = 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        for (int column = 0; column < columnCount(); ++column)
            across += std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
        return {std::clamp(across, 360, 640), horizontalHeader()->sizeHint().height() + 2 * frameWidth() +
                                                  lines * verticalHeader()->defaultSectionSize()};
    }
};

class ShownGrid final : public ShownControl {
public:
    ShownGrid(GridBox& grid, GridTable& table)
        : ShownControl(grid, table, Room::List), grid_(grid), table_(table) {}

protected:
    void SyncContent() override {
        if (rows_.Follow(grid_.rows)) table_.Fill(*grid_.rows);
    }

private:
    GridBox& grid_;
    GridTable& table_;
    ShownRevision rows_;
};

} // namespace

std::unique_ptr<ShownControl> Show(ListBox& list, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownListBox>(list, *new LineList(&dialog), user);
}

std::unique_ptr<ShownControl> Show(GridBox& grid, QWidget& dialog, UserActions&) {
    return std::make_unique<ShownGrid>(grid, *new GridTable(&dialog));
}

} // namespace ostrel::desktop

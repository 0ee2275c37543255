#include "desktop/LineList.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace ostrel::desktop {

namespace {

constexpr int ColumnGap = 16;

/// Paints the columns of a line at the places that the whole list gives them.
class ColumnsDelegate final : public QStyledItemDelegate {
public:
    explicit ColumnsDelegate(LineList* list) : QStyledItemDelegate(list), list_(*list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (list_.Columns().empty()) return QStyledItemDelegate::paint(painter, option, index);
        QStyleOptionViewItem line = option;
        initStyleOption(&line, index);
        const QStringList parts = line.text.split('\t');
        line.text.clear();
        const QStyle* style = list_.style();
        style->drawControl(QStyle::CE_ItemViewItem, &line, painter, &list_);
        QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &line, &list_);
        room.setLeft(option.rect.left() + style->pixelMetric(QStyle::PM_FocusFrameHMargin, &line, &list_) +
                     1);
        room.setRight(option.rect.right());
        const bool chosen = line.state.testFlag(QStyle::State_Selected);
        QPalette::ColorGroup group = QPalette::Active;
        if (!line.state.testFlag(QStyle::State_Enabled))
            group = QPalette::Disabled;
        else if (!line.state.testFlag(QStyle::State_Active))
            group = QPalette::Inactive;
        painter->save();
        painter->setFont(line.font);
        painter->setPen(line.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::Text));
        for (qsizetype part = 0; part < parts.size(); ++part) {
            const bool last = part + 1 == parts.size();
            const int width = last ? room.width() : list_.Columns()[static_cast<std::size_t>(part)];
            painter->drawText(QRect(room.left(), option.rect.top(), width, option.rect.height()),
                              Qt::AlignVCenter | Qt::TextSingleLine,
                              last ? line.fontMetrics.elidedText(parts[part], Qt::ElideRight, width)
                                   : parts[part]);
            room.setLeft(room.left() + width + ColumnGap);
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        if (list_.Columns().empty()) return size;
        const QStringList parts = index.data().toString().split('\t');
        int width = 8;
        for (qsizetype part = 0; part + 1 < parts.size(); ++part)
            width += list_.Columns()[static_cast<std::size_t>(part)] + ColumnGap;
        size.setWidth(width + option.fontMetrics.horizontalAdvance(parts.last()));
        return size;
    }

private:
    const LineList& list_;
};

} // namespace

LineList::LineList(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new ColumnsDelegate(this));
}

void LineList::Fill(const QStringList& lines) {
    columns_.clear();
    for (const QString& line : lines) {
        const QStringList parts = line.split('\t');
        columns_.resize(std::max(columns_.size(), static_cast<std::size_t>(parts.size() - 1)));
        for (qsizetype part = 0; part + 1 < parts.size(); ++part) {
            int& column = columns_[static_cast<std::size_t>(part)];
            column = std::max(column, fontMetrics().horizontalAdvance(parts[part]));
        }
    }
    clear();
    addItems(lines);
    updateGeometry();
}

QSize LineList::sizeHint() const {
    const int line = count() ? sizeHintForRow(0) : fontMetrics().height() + 4;
    const int across =
        sizeHintForColumn(0) + 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 8;
    return {std::clamp(across, 240, 640), std::clamp(count(), 5, 12) * line + 2 * frameWidth() + 4};
}

void LineList::focusInEvent(QFocusEvent* event) {
    const int before = currentRow();
    QListWidget::focusInEvent(event);
    // The toolkit would choose the first line, though nobody picked it.
    if (before < 0) setCurrentRow(before);
}

void LineList::keyPressEvent(QKeyEvent* event) {
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before) Pick();
}

void LineList::mousePressEvent(QMouseEvent* event) {
    // What a double click opened may have taken the release that belonged to it.
    doubled_ = false;
    pressedFrom_ = currentRow();
    QListWidget::mousePressEvent(event);
}

void LineList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (std::exchange(doubled_, false)) return;
    if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint()))
        Pick();
    else
        setCurrentRow(pressedFrom_);
}

void LineList::mouseDoubleClickEvent(QMouseEvent* event) {
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton || !itemAt(event->position().toPoint())) return;
    doubled_ = true;
    if (onDoublePress) onDoublePress();
}

void LineList::Pick() {
    if (currentRow() >= 0 && onPick) onPick(currentRow());
}

} // namespace ostrel::desktop

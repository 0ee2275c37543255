#include "desk/ColumnDelegates.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include "desk/ColumnsModel.h"

namespace ostrel::desk {

QWidget* KindDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const {
    auto* box = new QComboBox(parent);
    box->setFrame(false);
    for (const auto kind : {tables::ColumnType::Text, tables::ColumnType::Number, tables::ColumnType::Date,
                            tables::ColumnType::Time})
        box->addItem(KindName(kind), static_cast<int>(kind));
    connect(box, &QComboBox::activated, this, [this, box] {
        auto* self = const_cast<KindDelegate*>(this);
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    QTimer::singleShot(0, box, [box] { box->showPopup(); });
    return box;
}

void KindDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* box = static_cast<QComboBox*>(editor);
    box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
}

void KindDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    model->setData(index, static_cast<QComboBox*>(editor)->currentData(), Qt::EditRole);
}

void KindDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.flags().testFlag(Qt::ItemIsEditable)) return;
    QStyleOption arrow;
    arrow.palette = option.palette;
    arrow.state = QStyle::State_Enabled;
    constexpr int size = 8, margin = 4;
    arrow.rect = QRect(option.rect.right() - size - margin, option.rect.center().y() - size / 2, size, size);
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, option.widget);
}

void CheckDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const bool marked = item.checkState == Qt::Checked;
    const bool box = item.features.testFlag(QStyleOptionViewItem::HasCheckIndicator);
    item.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
    if (!box) return;
    const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, option.widget),
                     style->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, option.widget));
    QStyleOptionButton button;
    button.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
    button.palette = option.palette;
    button.state = item.state & (QStyle::State_Enabled | QStyle::State_Active);
    button.state |= item.checkState == Qt::PartiallyChecked ? QStyle::State_NoChange
                    : marked                                ? QStyle::State_On
                                                            : QStyle::State_Off;
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &button, painter, option.widget);
}

bool CheckDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem&,
                                const QModelIndex& index) {
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable)) return false;
    const bool clicked = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    const bool typed =
        event->type() == QEvent::KeyPress && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space ||
                                              static_cast<QKeyEvent*>(event)->key() == Qt::Key_Select);
    if (!clicked && !typed) return event->type() == QEvent::MouseButtonDblClick;
    const bool marked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, marked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

} // namespace ostrel::desk

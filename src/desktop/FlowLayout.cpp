#include "desktop/FlowLayout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace ostrel::desktop {

FlowLayout::~FlowLayout() = default;

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

QSize FlowLayout::sizeHint() const {
    int all = 0, widest = 0;
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        const int width = item->sizeHint().width();
        all += width + (all ? Gap() : 0);
        widest = std::max(widest, width);
    }
    const int width = std::max(widest, std::min(all, comfortable_));
    return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const {
    QSize least;
    for (const auto& item : items_)
        if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
    return least;
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    Flow(area, true);
}

int FlowLayout::Flow(const QRect& area, bool place) const {
    std::vector<QLayoutItem*> row;
    int x = area.x(), y = area.y(), height = 0;
    // A row is placed when its height is known, so that a check box is centred beside a button.
    const auto finishRow = [&] {
        int left = area.x();
        for (QLayoutItem* item : row) {
            const QSize size = item->sizeHint();
            if (place) item->setGeometry({{left, y + (height - size.height()) / 2}, size});
            left += size.width() + Gap();
        }
        row.clear();
    };
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        const QSize size = item->sizeHint();
        if (!row.empty() && x + size.width() > area.x() + area.width()) {
            finishRow();
            x = area.x();
            y += height + Gap();
            height = 0;
        }
        row.push_back(item.get());
        x += size.width() + Gap();
        height = std::max(height, size.height());
    }
    finishRow();
    return y + height - area.y();
}

int FlowLayout::Gap() const {
    if (const int gap = spacing(); gap >= 0) return gap;
    const QWidget* widget = parentWidget();
    return widget ? widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget) : 6;
}

} // namespace ostrel::desktop

#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace ostrel::desktop {

/// Places widgets side by side in as many rows as the width needs. Hidden ones leave no gap.
class FlowLayout final : public QLayout {
public:
    /// `comfortable` is the width, in pixels, that it would rather not pass.
    explicit FlowLayout(int comfortable) : comfortable_(comfortable) { setContentsMargins(0, 0, 0, 0); }
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Flow({0, 0, width, 0}, false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    /// Lays the items out in that area, really or only to learn the height, which it returns.
    int Flow(const QRect& area, bool place) const;
    int Gap() const;

    int comfortable_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace ostrel::desktop

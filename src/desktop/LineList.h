#pragma once

#include <QListWidget>
#include <functional>
#include <vector>

namespace ostrel::desktop {

/// A list of lines to pick from. Tabs part a line into columns, each as wide as its widest text.
class LineList final : public QListWidget {
public:
    explicit LineList(QWidget* parent);

    /// The user picked a line: once a click, on the chosen line too, and once a move by keys.
    std::function<void(int line)> onPick;
    std::function<void()> onDoublePress;

    void Fill(const QStringList& lines);
    /// The width of each column but the last.
    const std::vector<int>& Columns() const { return columns_; }

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Pick();

    std::vector<int> columns_;
    int pressedFrom_ = -1; ///< the chosen line before the button went down
    bool doubled_ = false; ///< the button that goes up now ends a double click
};

} // namespace ostrel::desktop

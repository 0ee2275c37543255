#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

class QWebEngineView;

namespace ostrel::desktop {

/// A line over the top right corner of a view in which a text of the page is looked for. Enter goes on to the
/// next place, Shift and Enter to the one before, Escape closes it.
class FindBar final : public QWidget {
public:
    /// A child of the view's parent, placed over the view.
    explicit FindBar(QWebEngineView& view);

    /// Shows it with its text selected, ready to be typed over.
    void Open();
    void Close();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Find(bool backward);
    void Place();

    QWebEngineView& view_;
    QLineEdit text_;
    QLabel count_;
};

} // namespace ostrel::desktop

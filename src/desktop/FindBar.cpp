#include "desktop/FindBar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QToolButton>
#include <QWebEngineFindTextResult>
#include <QWebEngineView>

namespace ostrel::desktop {

FindBar::FindBar(QWebEngineView& view) : QWidget(view.parentWidget()), view_(view) {
    setObjectName("findBar");
    setAutoFillBackground(true);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet("#findBar { background: palette(window); border: 1px solid palette(mid); "
                  "border-top: none; border-radius: 4px; }");
    text_.setObjectName("findText");
    text_.setPlaceholderText(tr("Find in page"));
    text_.setClearButtonEnabled(true);
    count_.setMinimumWidth(fontMetrics().horizontalAdvance("000 / 000"));
    count_.setAlignment(Qt::AlignCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->addWidget(&text_);
    layout->addWidget(&count_);
    const auto add = [&](Qt::ArrowType arrow, const QString& tip, bool backward) {
        auto* button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAutoRaise(true);
        button->setToolTip(tip);
        connect(button, &QToolButton::clicked, this, [this, backward] { Find(backward); });
        layout->addWidget(button);
    };
    add(Qt::UpArrow, tr("Previous (Shift+Enter)"), true);
    add(Qt::DownArrow, tr("Next (Enter)"), false);
    connect(&text_, &QLineEdit::textChanged, this, [this] { Find(false); });
    view.parentWidget()->installEventFilter(this);
    hide();
}

void FindBar::Open() {
    Place();
    show();
    raise();
    text_.setFocus();
    text_.selectAll();
    if (!text_.text().isEmpty()) Find(false);
}

void FindBar::Close() {
    if (!isVisible()) return;
    hide();
    view_.findText({});
    view_.setFocus();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && isVisible()) Place();
    return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Find(event->modifiers().testFlag(Qt::ShiftModifier));
    case Qt::Key_Escape:
        return Close();
    default:
        return QWidget::keyPressEvent(event);
    }
}

void FindBar::Find(bool backward) {
    QWebEnginePage::FindFlags flags;
    flags.setFlag(QWebEnginePage::FindBackward, backward);
    // The engine may answer when the bar is gone.
    view_.page()->findText(
        text_.text(), flags, [bar = QPointer<FindBar>(this)](const QWebEngineFindTextResult& found) {
            if (!bar) return;
            const bool searched = !bar->text_.text().isEmpty();
            const QString place =
                QString::number(found.activeMatch()) + " / " + QString::number(found.numberOfMatches());
            bar->count_.setText(!searched ? QString() : found.numberOfMatches() == 0 ? tr("none") : place);
        });
}

void FindBar::Place() {
    const QSize size = sizeHint();
    move(std::max(0, parentWidget()->width() - size.width() - 24), 0);
    resize(size);
}

} // namespace ostrel::desktop

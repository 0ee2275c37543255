#include "desktop/MainTextEdit.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <functional>

#include "desktop/QtText.h"

namespace ostrel::desktop {

namespace {

/// A text of another application, which may end its lines in a bare LF, as the component knows it.
Text TextOf(const QMimeData& source) {
    QString text = source.text();
    text.replace("\r\n", "\n").replace('\n', "\r\n");
    return FromQt(text);
}

/// Lets an entry of the toolkit's own menu do something else.
void Redirect(const QMenu& menu, const char* name, bool enabled, const std::function<void()>& act) {
    auto* action = menu.findChild<QAction*>(name);
    if (!action) return;
    action->disconnect();
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, act);
}

} // namespace

void MainTextEdit::ColourSeen() {
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        if (blockBoundingGeometry(block).translated(contentOffset()).top() > viewport()->height()) return;
        keeper->Colour(block);
    }
}

void MainTextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo))
        keeper->Undo();
    else if (event->matches(QKeySequence::Redo))
        keeper->Redo();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void MainTextEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu(event->pos());
    if (!menu) return;
    Redirect(*menu, "edit-undo", keeper->CanUndo(), [this] { keeper->Undo(); });
    Redirect(*menu, "edit-redo", keeper->CanRedo(), [this] { keeper->Redo(); });
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

void MainTextEdit::paintEvent(QPaintEvent* event) {
    ColourSeen();
    QPlainTextEdit::paintEvent(event);
}

void MainTextEdit::dropEvent(QDropEvent* event) {
    if (isReadOnly() || !canInsertFromMimeData(event->mimeData())) return QPlainTextEdit::dropEvent(event);
    const bool moves = event->dropAction() == Qt::MoveAction && event->source() == viewport();
    keeper->Drop(cursorForPosition(event->position().toPoint()).position(), TextOf(*event->mimeData()),
                 moves);
    event->acceptProposedAction();
    // Takes away the caret that showed where the text would fall.
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
}

QMimeData* MainTextEdit::createMimeDataFromSelection() const {
    auto* copy = new QMimeData;
    const QTextCursor cursor = textCursor();
    copy->setText(ToQt(keeper->Part(cursor.selectionStart(), cursor.selectionEnd())).replace("\r\n", "\n"));
    return copy;
}

bool MainTextEdit::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

void MainTextEdit::insertFromMimeData(const QMimeData* source) {
    if (!isReadOnly() && source->hasText()) keeper->Insert(TextOf(*source));
}

} // namespace ostrel::desktop

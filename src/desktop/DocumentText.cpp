#include "desktop/DocumentText.h"

#include <QTextCursor>
#include <limits>

#include "desktop/LineText.h"

namespace ostrel::desktop {

bool ShowInDocument(QTextDocument& document, const QString& raw) {
    const TextChange change = ChangeBetween(document.toRawText(), raw, std::numeric_limits<int>::max());
    if (change.Empty()) return false;
    QTextCursor cursor(&document);
    cursor.setPosition(change.start);
    cursor.setPosition(change.start + change.removed, QTextCursor::KeepAnchor);
    cursor.insertText(change.inserted);
    return true;
}

} // namespace ostrel::desktop

#pragma once

#include <QTextDocument>

namespace ostrel::desktop {

/// Makes `raw` the text of a document. Only what differs is touched, so that carets, scrolling and the steps
/// to undo stay. False where there was nothing to do.
bool ShowInDocument(QTextDocument& document, const QString& raw);

} // namespace ostrel::desktop

#pragma once

#include <QString>

#include "text/Text.h"

namespace ostrel::desktop {

/// A text of several lines as labels show it: every line end is one `lineEnd`.
QString ShownLines(TextView text, QChar lineEnd = '\n');
/// Raw text of a document as the component knows it: every line end is CR LF.
Text ModelLines(const QString& raw);

/// A text for the bar of a window, where the toolkit would take "[*]" for a mark of its own.
QString TitleText(TextView title);
/// A tip that is shown as it is, even where it looks like HTML.
QString TipText(TextView tip);

/// What turned one text into another: `inserted` came in the place of `removed` characters from `start`.
struct TextChange {
    int start = 0;
    int removed = 0;
    QString inserted;
    bool Empty() const { return removed == 0 && inserted.isEmpty(); }
};

/// The smallest change between both that starts at `latest` or before.
TextChange ChangeBetween(const QString& before, const QString& after, int latest);

} // namespace ostrel::desktop

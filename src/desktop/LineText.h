#pragma once

#include <QString>
#include <vector>

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

/// A buffer of the component beside the raw text of the document that shows it. A CR LF is one character
/// there, and all else is one character in both.
class LineText {
public:
    explicit LineText(TextView text = {});

    /// Lines are parted by paragraph separators, as in QTextDocument::toRawText.
    const QString& Raw() const { return raw_; }
    /// A position between CR and LF stands before the line end.
    int ToRaw(Long position) const;
    Long ToModel(int position) const;

private:
    QString raw_;
    std::vector<int> pairs_; ///< where in `raw_` a CR LF stands, ascending
};

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

#include "desktop/LineText.h"

#include <QTextDocument>
#include <algorithm>
#include <iterator>

#include "desktop/QtText.h"

namespace ostrel::desktop {

QString ShownLines(TextView text, QChar lineEnd) {
    QString shown = ToQt(text);
    shown.replace("\r\n", "\n").replace('\r', '\n');
    return lineEnd == '\n' ? shown : shown.replace('\n', lineEnd);
}

Text ModelLines(const QString& raw) {
    QString text = raw;
    text.replace(QChar(QChar::ParagraphSeparator), "\n").replace(QChar(QChar::LineSeparator), "\n");
    return FromQt(text.replace('\n', "\r\n"));
}

QString TitleText(TextView title) { return ShownLines(title, ' ').replace("[*]", "[*][*]"); }

QString TipText(TextView tip) {
    const QString plain = ShownLines(tip);
    if (!Qt::mightBeRichText(plain)) return plain;
    return "<p style='white-space:pre-wrap'>" + plain.toHtmlEscaped().replace('\n', "<br>") + "</p>";
}

TextChange ChangeBetween(const QString& before, const QString& after, int latest) {
    const qsizetype shorter = std::min(before.size(), after.size());
    const auto firstOther =
        std::mismatch(before.begin(), before.begin() + std::min<qsizetype>(shorter, latest), after.begin());
    const qsizetype start = std::distance(before.begin(), firstOther.first);
    const auto lastOther =
        std::mismatch(before.rbegin(), before.rbegin() + (shorter - start), after.rbegin());
    const qsizetype same = std::distance(before.rbegin(), lastOther.first);
    return {static_cast<int>(start), static_cast<int>(before.size() - same - start),
            after.mid(start, after.size() - same - start)};
}

} // namespace ostrel::desktop

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

LineText::LineText(TextView text) : raw_(ShownLines(text, QChar::ParagraphSeparator)) {
    int passed = 0;
    for (std::size_t at = text.find(LineEnd); at != TextView::npos; at = text.find(LineEnd, at + 2))
        pairs_.push_back(static_cast<int>(at) - passed++);
}

int LineText::ToRaw(Long position) const {
    // The pair of number k ends its CR at pairs_[k] + k + 1 in the buffer; each one behind counts one less.
    std::size_t low = 0, high = pairs_.size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (pairs_[middle] + static_cast<int>(middle) + 1 <= position)
            low = middle + 1;
        else
            high = middle;
    }
    return position - static_cast<int>(low);
}

Long LineText::ToModel(int position) const {
    return position + static_cast<Long>(std::distance(
                          pairs_.begin(), std::lower_bound(pairs_.begin(), pairs_.end(), position)));
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

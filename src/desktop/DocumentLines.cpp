#include "desktop/DocumentLines.h"

#include <QTextCursor>
#include <algorithm>
#include <limits>

#include "desktop/LineText.h"

namespace ostrel::desktop {

namespace {

QTextCursor PartOf(QTextDocument& document, int at, int length) {
    QTextCursor cursor(&document);
    cursor.setPosition(at);
    cursor.setPosition(at + length, QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

int DocumentLines::OddBefore(int position) const {
    return static_cast<int>(std::lower_bound(odd_.begin(), odd_.end(), position) - odd_.begin());
}

Long DocumentLines::ToModel(int position) const {
    return position + LineEnds(position) - OddBefore(position);
}

int DocumentLines::ToDocument(Long position) const {
    // Each line end takes at most one character more in the text.
    int low = std::clamp(position - (document_.blockCount() - 1), 0, Size());
    int high = std::min<int>(position, Size());
    while (low < high) {
        const int middle = high - (high - low) / 2;
        if (ToModel(middle) <= position)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

QString DocumentLines::Shown(Long at, Long length) const {
    const int start = ToDocument(at);
    return PartOf(document_, start, ToDocument(at + length) - start).selectedText();
}

void DocumentLines::Show(Long at, Long removed, TextView inserted) {
    const int start = ToDocument(at), end = ToDocument(at + removed);
    const QString shown = ShownLines(inserted, QChar::ParagraphSeparator);
    PartOf(document_, start, end - start).insertText(shown);
    Move(start, end - start, static_cast<int>(shown.size()));

    std::vector<int> odd;
    int pairs = 0;
    for (std::size_t i = inserted.find_first_of(LineEnd); i != TextView::npos;
         i = inserted.find_first_of(LineEnd, i + 1)) {
        if (inserted.substr(i, 2) == LineEnd) {
            ++pairs;
            ++i;
        } else {
            odd.push_back(start + static_cast<int>(i) - pairs);
        }
    }
    odd_.insert(odd_.begin() + OddBefore(start), odd.begin(), odd.end());
}

Change DocumentLines::Follow(int at, int removed, int added, const EditBuffer* before) {
    // A report may count the end of the document as a character.
    removed = std::min(removed, size_ - at);
    added = std::min(added, Size() - at);
    if (removed < 0 || added < 0 || size_ - removed + added != Size()) {
        at = 0;
        removed = size_;
        added = Size();
    }
    const auto removedLength = [&] {
        const int kept = document_.blockCount() - 1 - (LineEnds(at + added) - LineEnds(at));
        return removed + lineEnds_ - kept - (OddBefore(at + removed) - OddBefore(at));
    };
    // A large part that went for a small one is what the report says.
    constexpr int Small = 4096;
    if (before && removed > 0 && added > 0 && removed / 2 <= added + Small) {
        const QString old = ShownLines(before->Copy(ToModel(at), removedLength()), QChar::ParagraphSeparator);
        const TextChange change =
            ChangeBetween(old, PartOf(document_, at, added).selectedText(), std::numeric_limits<int>::max());
        at += change.start;
        removed = change.removed;
        added = static_cast<int>(change.inserted.size());
    }
    const Long removedFromModel = removedLength();
    Move(at, removed, added);
    return {ToModel(at), removedFromModel, ToModel(at + added) - ToModel(at)};
}

void DocumentLines::Move(int at, int removed, int inserted) {
    const auto first = odd_.begin() + OddBefore(at), behind = odd_.begin() + OddBefore(at + removed);
    for (auto later = behind; later != odd_.end(); ++later) *later += inserted - removed;
    odd_.erase(first, behind);
    size_ = Size();
    lineEnds_ = document_.blockCount() - 1;
}

} // namespace ostrel::desktop

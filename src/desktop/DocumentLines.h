#pragma once

#include <QTextBlock>
#include <QTextDocument>
#include <vector>

#include "ui/EditBuffer.h"

namespace ostrel::desktop {

/// Which place in a text of the component is which in the document that shows it. A CR LF is one character
/// there, the end of a block. A CR or LF alone ends a block too, which only this knows; what the user does to
/// the document makes line ends of CR LF.
///
/// Each place costs the logarithm of the text's size; a change, what it changes and the number of line ends
/// that are no CR LF.
class DocumentLines {
public:
    /// The document is empty.
    explicit DocumentLines(QTextDocument& document) : document_(document) {}

    Long ToModel(int position) const;
    /// A position between CR and LF stands before the line end.
    int ToDocument(Long position) const;

    /// The characters of the document that show a part of the text; line ends are paragraph separators.
    QString Shown(Long at, Long length) const;
    /// Puts a text in the place of a part. No place may be parted from a line end that it becomes one with.
    void Show(Long at, Long removed, TextView inserted);
    /// Follows a change that the document reports, in its own places, and returns it as one of the text. A
    /// report may say more than has changed; by the text of before, where the document has shown exactly
    /// that, it is narrowed to what has.
    Change Follow(int at, int removed, int added, const EditBuffer* before);

private:
    int Size() const { return document_.characterCount() - 1; }
    /// The blocks that end before that position.
    int LineEnds(int position) const { return document_.findBlock(position).blockNumber(); }
    int OddBefore(int position) const;
    /// Notes that places have changed; all line ends among what was inserted are CR LF.
    void Move(int at, int removed, int inserted);

    QTextDocument& document_;
    std::vector<int> odd_; ///< places of line ends that are no CR LF, ascending
    int size_ = 0;         ///< of the document before the next change
    int lineEnds_ = 0;
};

} // namespace ostrel::desktop

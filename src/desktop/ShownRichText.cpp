#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <algorithm>
#include <vector>

#include "desktop/DocumentText.h"
#include "desktop/LineText.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

/// A stretch of the document in a colour of its own.
struct ColourStretch {
    int start, end;
    QColor colour;
};

/// Paints the stretches over the text; nothing of it goes into the document or its steps to undo.
class ColourPainter final : public QSyntaxHighlighter {
public:
    explicit ColourPainter(QTextDocument* document) : QSyntaxHighlighter(document) {}

    void Show(std::vector<ColourStretch> stretches) {
        if (stretches.empty() && stretches_.empty()) return;
        stretches_ = std::move(stretches);
        rehighlight();
    }

protected:
    void highlightBlock(const QString& line) override {
        const int from = currentBlock().position(), to = from + static_cast<int>(line.size());
        auto stretch = std::partition_point(stretches_.begin(), stretches_.end(),
                                            [from](const ColourStretch& each) { return each.end <= from; });
        for (; stretch != stretches_.end() && stretch->start < to; ++stretch) {
            const int start = std::max(stretch->start, from);
            setFormat(start - from, std::min(stretch->end, to) - start, stretch->colour);
        }
    }

private:
    std::vector<ColourStretch> stretches_; ///< in order, none over another
};

QColor ColourOf(Long colour) { return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF}; }

class ShownRichText final : public ShownControl {
public:
    ShownRichText(RichText& text, QPlainTextEdit& edit, UserActions& user)
        : ShownControl(text, edit), text_(text), edit_(edit), user_(user),
          painter_(new ColourPainter(edit.document())), lines_(text.Content()), content_(text.Content()) {
        edit.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        edit.setMinimumSize(edit.fontMetrics().averageCharWidth() * 40, edit.fontMetrics().height() * 8);
        ShowInDocument(*edit.document(), lines_.Raw());
        edit.document()->clearUndoRedoStacks();
        QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] { TakeOver(); });
        QObject::connect(&edit, &QPlainTextEdit::selectionChanged, &edit, [this] { TakeOver(); });
        QObject::connect(&edit, &QPlainTextEdit::cursorPositionChanged, &edit, [this] { TakeOver(); });
    }

protected:
    void SyncContent() override {
        if (edit_.isReadOnly() != text_.locked) edit_.setReadOnly(text_.locked);
        if (content_ != text_.Content()) Adopt();
        if (revision_ != edit_.document()->revision()) {
            ShowInDocument(*edit_.document(), lines_.Raw());
            revision_ = edit_.document()->revision();
        }
        if (repaint_ || colours_ != text_.colours) {
            repaint_ = false;
            colours_ = text_.colours;
            painter_->Show(Stretches());
        }
        SyncSelection();
    }

private:
    /// The model has another text than before; the document follows at the next showing.
    void Adopt() {
        content_ = text_.Content();
        lines_ = LineText(content_);
        revision_ = -1;
        repaint_ = true;
    }

    /// Brings to the model what the user did to the document. It comes by any of several signals, in any
    /// order, and from any source: keys, input methods, the clipboard, a drop, an undo.
    void TakeOver() {
        user_.Act(text_, [this] {
            // A timer was faster than the user, who meant a text that is gone.
            if (content_ != text_.Content()) return;
            if (revision_ != edit_.document()->revision() && !TakeText()) return;
            const QTextCursor cursor = edit_.textCursor();
            Select(cursor.selectionStart(), cursor.selectionEnd());
        });
    }

    /// Whether the document shows the model's text now, so that a place in it means the same in both.
    bool TakeText() {
        const QString raw = edit_.document()->toRawText();
        const TextChange change = ChangeBetween(lines_.Raw(), raw, lines_.ToRaw(text_.SelStart()));
        if (change.Empty()) return true;
        Select(change.start, change.start + change.removed);
        text_.ReplaceSelection(ModelLines(change.inserted));
        Adopt();
        return lines_.Raw() == raw;
    }

    /// Handlers hear of a selection only when it is another one.
    void Select(int start, int end) {
        if (start == lines_.ToRaw(text_.SelStart()) &&
            end == lines_.ToRaw(text_.SelStart() + text_.SelLength()))
            return;
        const Long from = lines_.ToModel(start);
        text_.Select(from, lines_.ToModel(end) - from);
    }

    void SyncSelection() {
        const int start = lines_.ToRaw(text_.SelStart());
        const int end = lines_.ToRaw(text_.SelStart() + text_.SelLength());
        QTextCursor cursor = edit_.textCursor();
        if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        edit_.setTextCursor(cursor);
    }

    std::vector<ColourStretch> Stretches() const {
        std::vector<ColourStretch> stretches;
        for (const auto& [start, length, colour] : colours_)
            stretches.push_back({lines_.ToRaw(start), lines_.ToRaw(start + length), ColourOf(colour)});
        return stretches;
    }

    RichText& text_;
    QPlainTextEdit& edit_;
    UserActions& user_;
    ColourPainter* painter_; ///< of the document
    LineText lines_;
    Text content_;      ///< what `lines_` shows
    int revision_ = -1; ///< of the document when it showed `lines_`
    std::vector<ColourRun> colours_;
    bool repaint_ = true;
};

} // namespace

std::unique_ptr<ShownControl> ShowRichText(RichText& text, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownRichText>(text, *new QPlainTextEdit(&dialog), user);
}

} // namespace ostrel::desktop

#include <QFontDatabase>
#include <QScopedValueRollback>
#include <QTextLayout>
#include <algorithm>

#include "desktop/DocumentLines.h"
#include "desktop/LineText.h"
#include "desktop/MainTextEdit.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

QColor ColourOf(Long colour) { return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF}; }

Long SizeOf(const Text& text) { return static_cast<Long>(text.size()); }

/// The document follows the model by the changes that its buffer remembers, and the model the document by
/// those that the toolkit reports. Neither is ever compared with the other as a whole.
class ShownRichText final : public ShownControl, private TextKeeper {
public:
    ShownRichText(RichText& text, MainTextEdit& edit, UserActions& user)
        : ShownControl(text, edit, Room::Editor), text_(text), edit_(edit), user_(user),
          lines_(*edit.document()) {
        edit.keeper = this;
        edit.setUndoRedoEnabled(false);
        edit.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        edit.setMinimumSize(edit.fontMetrics().averageCharWidth() * 40, edit.fontMetrics().height() * 8);
        ShowChanges();
        QObject::connect(edit.document(), &QTextDocument::contentsChange, &edit,
                         [this](int at, int removed, int added) { Note(at, removed, added); });
        QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] { TakeOver(); });
        QObject::connect(&edit, &QPlainTextEdit::selectionChanged, &edit, [this] { TakeOver(); });
        QObject::connect(&edit, &QPlainTextEdit::cursorPositionChanged, &edit, [this] { TakeOver(); });
    }

protected:
    void SyncContent() override {
        if (edit_.isReadOnly() != text_.locked) edit_.setReadOnly(text_.locked);
        ShowChanges();
        SyncSelection();
        edit_.ColourSeen();
    }

private:
    bool IsShown() const { return pending_.empty() && revision_ == text_.Buffer().Revision(); }

    /// Brings the document to what the model says now: whatever differs in the document goes, and what has
    /// changed in the model comes.
    void ShowChanges() {
        if (IsShown()) return;
        std::vector<Change> changes;
        for (auto change = pending_.rbegin(); change != pending_.rend(); ++change)
            AddChange(changes, {change->at, change->inserted, change->removed});
        for (const Change& change : text_.Buffer().Since(revision_)) AddChange(changes, change);
        pending_.clear();
        revision_ = text_.Buffer().Revision();
        const QScopedValueRollback<bool> guard(showing_, true);
        QTextCursor group(edit_.document());
        group.beginEditBlock();
        for (const Change& change : changes) Show(change);
        group.endEditBlock();
    }

    void Show(Change change) {
        // A CR or LF beside it may have become, or have been, a line end with what is changed.
        if (CharacterAt(change.at - 1) == '\r') {
            --change.at;
            ++change.removed;
            ++change.inserted;
        }
        if (CharacterAt(change.at + change.inserted) == '\n') {
            ++change.removed;
            ++change.inserted;
        }
        lines_.Show(change.at, change.removed, text_.Buffer().Copy(change.at, change.inserted));
    }

    /// 0 outside the text.
    char CharacterAt(Long at) const {
        const TextView text = at < 0 ? TextView() : text_.Buffer().Read(at);
        return text.empty() ? '\0' : text.front();
    }

    /// The document has changed, by whatever source: keys, input methods, a cut.
    void Note(int at, int removed, int added) {
        if (showing_) return;
        const Change change = lines_.Follow(at, removed, added, IsShown() ? &text_.Buffer() : nullptr);
        if (change.removed > 0 || change.inserted > 0) AddChange(pending_, change);
    }

    /// Brings to the model what the user did to the document. It comes by any of several signals, in any
    /// order.
    void TakeOver() {
        user_.Act(text_, [this] {
            // A timer was faster than the user, who meant a text that is gone.
            if (revision_ != text_.Buffer().Revision() || !HandOver()) return;
            const QTextCursor cursor = edit_.textCursor();
            Select(cursor.selectionStart(), cursor.selectionEnd());
        });
    }

    /// Whether the document shows the model's text now, so that a place in it means the same in both.
    bool HandOver() {
        while (!pending_.empty()) {
            const Change change = pending_.front();
            const QString shown = lines_.Shown(change.at, change.inserted);
            const Text inserted = ModelLines(shown);
            // Handlers may look at the window, or change the text again, so all is in order before they run.
            pending_.erase(pending_.begin());
            if (ShownLines(inserted, QChar::ParagraphSeparator) != shown)
                // Some characters are outside the code page.
                pending_.insert(pending_.begin(), {change.at, SizeOf(inserted), change.inserted});
            else if (inserted.empty() && CharacterAt(change.at - 1) == '\r' &&
                     CharacterAt(change.at + change.removed) == '\n')
                // Two line ends have become one.
                pending_.insert(pending_.begin(), {change.at - 1, 2, 2});
            const bool same = pending_.empty();
            ++revision_;
            if (!text_.Type(change.at, change.removed, inserted)) {
                --revision_;
                pending_ = {change};
                return false;
            }
            if (!same || revision_ != text_.Buffer().Revision()) return false;
        }
        return true;
    }

    /// Handlers hear of a selection only when it is another one.
    void Select(int start, int end) {
        const Long from = lines_.ToModel(start), length = lines_.ToModel(end) - from;
        if (from != text_.SelStart() || length != text_.SelLength()) text_.Select(from, length);
    }

    void SyncSelection() {
        const int start = lines_.ToDocument(text_.SelStart());
        const int end = lines_.ToDocument(text_.SelStart() + text_.SelLength());
        QTextCursor cursor = edit_.textCursor();
        if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        edit_.setTextCursor(cursor);
    }

    /// An edit of the user that goes to the model first.
    void Edit(const std::function<void()>& edit) {
        user_.Act(text_, [&] {
            if (!text_.locked) edit();
        });
        edit_.ensureCursorVisible();
    }

    Text Part(int start, int end) const override {
        const Long from = lines_.ToModel(start);
        return IsShown() ? text_.Buffer().Copy(from, lines_.ToModel(end) - from) : Text();
    }
    void Insert(const Text& text) override {
        Edit([&] { text_.ReplaceSelection(text); });
    }
    void Drop(int position, const Text& text, bool moves) override {
        Edit([&] {
            if (!IsShown()) return;
            Long at = lines_.ToModel(position);
            const Long start = text_.SelStart(), length = text_.SelLength();
            text_.BeginStep();
            if (moves) {
                text_.Replace(start, length, {});
                if (at > start) at -= std::min(at - start, length);
            }
            text_.Replace(at, 0, text);
            text_.EndStep();
        });
    }
    bool CanUndo() const override { return !text_.locked && text_.Buffer().CanUndo(); }
    bool CanRedo() const override { return !text_.locked && text_.Buffer().CanRedo(); }
    void Undo() override {
        Edit([this] { text_.Undo(); });
    }
    void Redo() override {
        Edit([this] { text_.Redo(); });
    }

    void Colour(const QTextBlock& block) override {
        if (text_.Buffer().ColourRevision() == 0 || !IsShown()) return;
        const Long start = lines_.ToModel(block.position());
        QList<QTextLayout::FormatRange> colours;
        for (const auto& [at, length, colour] : text_.Buffer().Colours(start, block.length() - 1)) {
            QTextCharFormat format;
            format.setForeground(ColourOf(colour));
            colours.push_back({at - start, length, format});
        }
        if (block.layout()->formats() == colours) return;
        block.layout()->setFormats(colours);
        edit_.document()->markContentsDirty(block.position(), block.length());
    }

    RichText& text_;
    MainTextEdit& edit_;
    UserActions& user_;
    DocumentLines lines_;
    /// The document shows the text of this revision with these changes made to it, which the model does not
    /// know.
    std::uint64_t revision_ = 0;
    std::vector<Change> pending_;
    bool showing_ = false;
};

} // namespace

std::unique_ptr<ShownControl> Show(RichText& text, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownRichText>(text, *new MainTextEdit(&dialog), user);
}

} // namespace ostrel::desktop

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextBlock>
#include <algorithm>

#include "desktop/DocumentText.h"
#include "desktop/LineText.h"
#include "desktop/QtText.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

/// A box that is locked has the ground of the window, so that nobody tries to type.
void ShowLock(QWidget& box, bool locked) {
    QPalette palette = box.parentWidget()->palette();
    if (locked) palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box.setPalette(palette);
}

class ShownLineBox final : public ShownControl {
public:
    ShownLineBox(TextBox& box, QLineEdit& edit, UserActions& user)
        : ShownControl(box, edit, Room::Field), box_(box), edit_(edit) {
        AddHeading();
        QObject::connect(&edit, &QLineEdit::textEdited, &edit, [&box, &user](const QString& text) {
            user.Act(box, [&] { box.Enter(FromQt(text)); });
        });
    }

protected:
    void SyncContent() override {
        SyncHeading(box_.label);
        if (edit_.isReadOnly() != box_.locked) {
            edit_.setReadOnly(box_.locked);
            ShowLock(edit_, box_.locked);
        }
        const QString shown = ToQt(*box_.text);
        if (edit_.text() == shown) return;
        const int caret = edit_.cursorPosition();
        edit_.setText(shown);
        // In a box that nobody is at, the start of a long text is seen.
        edit_.setCursorPosition(edit_.hasFocus() ? caret : 0);
    }

private:
    TextBox& box_;
    QLineEdit& edit_;
};

/// What the user types is handed over as the text of the box, and the document is touched only where somebody
/// else has changed that text, so a key compares no texts.
class ShownLinesBox final : public ShownControl {
public:
    ShownLinesBox(TextBox& box, QPlainTextEdit& edit, UserActions& user)
        : ShownControl(box, edit, Room::List), box_(box), edit_(edit) {
        AddHeading();
        edit.setTabChangesFocus(true);
        QObject::connect(edit.document(), &QTextDocument::contentsChange, &edit,
                         [this](int at, int, int added) { same_ = same_ && IsInCodePage(at, added); });
        QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this, &user] {
            differs_ = true;
            user.Act(box_, [this] { TakeOver(); });
        });
    }

protected:
    void SyncContent() override {
        SyncHeading(box_.label);
        if (edit_.isReadOnly() != box_.locked) {
            edit_.setReadOnly(box_.locked);
            ShowLock(edit_, box_.locked);
        }
        const bool changed = text_.Follow(box_.text);
        if (!differs_ && !changed) return;
        const bool shown =
            ShowInDocument(*edit_.document(), ShownLines(*box_.text, QChar::ParagraphSeparator));
        differs_ = false;
        same_ = true;
        if (!shown || edit_.hasFocus()) return;
        // Another text was put there, which starts at its start and has no steps to undo.
        edit_.moveCursor(QTextCursor::Start);
        edit_.document()->clearUndoRedoStacks();
    }

private:
    void TakeOver() {
        const bool entered = box_.Enter(ModelLines(edit_.document()->toRawText()));
        if (!entered || !same_ || !box_.AsEntered()) return;
        text_.Follow(box_.text);
        differs_ = false;
    }

    bool IsInCodePage(int at, int length) const {
        QTextCursor added(edit_.document());
        added.setPosition(at);
        added.setPosition(std::min(at + length, edit_.document()->characterCount() - 1),
                          QTextCursor::KeepAnchor);
        const QString text = added.selectedText();
        return ShownLines(ModelLines(text), QChar::ParagraphSeparator) == text;
    }

    TextBox& box_;
    QPlainTextEdit& edit_;
    ShownRevision text_;
    bool differs_ = true; ///< the document may show another text than that of `text_`
    bool same_ = true;    ///< what the user put there has a place in the code page
};

class ShownComboBox final : public ShownControl {
public:
    ShownComboBox(ComboBox& box, QComboBox& list, UserActions& user)
        : ShownControl(box, list, Room::Field), box_(box), list_(list), user_(user) {
        AddHeading();
        list.setInsertPolicy(QComboBox::NoInsert);
        list.setMaxVisibleItems(20);
        QObject::connect(&list, &QComboBox::activated, &list,
                         [&box, &user](int line) { user.Act(box, [&] { box.Enter(Long{line}); }); });
    }

protected:
    void SyncContent() override {
        SyncHeading(box_.label);
        if (list_.isEditable() != box_.typing) OpenToTyping();
        if (items_.Follow(box_.items)) {
            list_.clear();
            for (const Text& item : *box_.items) list_.addItem(ToQt(item));
        }
        if (list_.currentIndex() != box_.index) list_.setCurrentIndex(box_.index);
        const QString shown = ToQt(*box_.text);
        if (!box_.typing) {
            // A text that is none of the lines is seen all the same.
            if (list_.placeholderText() != shown) list_.setPlaceholderText(shown);
            return;
        }
        QLineEdit& edit = *list_.lineEdit();
        if (edit.isReadOnly() != box_.locked) edit.setReadOnly(box_.locked);
        if (edit.text() == shown) return;
        const int caret = edit.cursorPosition();
        edit.setText(shown);
        edit.setCursorPosition(edit.hasFocus() ? caret : 0);
    }

private:
    void OpenToTyping() {
        list_.setEditable(box_.typing);
        if (!box_.typing) return;
        // What is typed stays as it is typed.
        list_.setCompleter(nullptr);
        QObject::connect(list_.lineEdit(), &QLineEdit::textEdited, &list_,
                         [&box = box_, &user = user_](const QString& text) {
                             user.Act(box, [&] { box.Enter(FromQt(text)); });
                         });
    }

    ComboBox& box_;
    QComboBox& list_;
    UserActions& user_;
    ShownRevision items_;
};

} // namespace

std::unique_ptr<ShownControl> Show(TextBox& box, QWidget& dialog, UserActions& user) {
    if (box.lines) return std::make_unique<ShownLinesBox>(box, *new QPlainTextEdit(&dialog), user);
    return std::make_unique<ShownLineBox>(box, *new QLineEdit(&dialog), user);
}

std::unique_ptr<ShownControl> Show(ComboBox& box, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownComboBox>(box, *new QComboBox(&dialog), user);
}

} // namespace ostrel::desktop

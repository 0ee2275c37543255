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
        : ShownControl(box, edit), box_(box), edit_(edit) {
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
        const QString shown = ToQt(box_.text);
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

class ShownLinesBox final : public ShownControl {
public:
    ShownLinesBox(TextBox& box, QPlainTextEdit& edit, UserActions& user)
        : ShownControl(box, edit), box_(box), edit_(edit) {
        AddHeading();
        edit.setTabChangesFocus(true);
        QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [&box, &edit, &user] {
            user.Act(box, [&] { box.Enter(ModelLines(edit.document()->toRawText())); });
        });
    }

protected:
    void SyncContent() override {
        SyncHeading(box_.label);
        if (edit_.isReadOnly() != box_.locked) {
            edit_.setReadOnly(box_.locked);
            ShowLock(edit_, box_.locked);
        }
        QTextDocument& document = *edit_.document();
        if (revision_ == document.revision() && text_ == box_.text) return;
        text_ = box_.text;
        const bool changed = ShowInDocument(document, ShownLines(text_, QChar::ParagraphSeparator));
        revision_ = document.revision();
        if (!changed || edit_.hasFocus()) return;
        // Another text was put there, which starts at its start and has no steps to undo.
        edit_.moveCursor(QTextCursor::Start);
        document.clearUndoRedoStacks();
        revision_ = document.revision();
    }

private:
    TextBox& box_;
    QPlainTextEdit& edit_;
    Text text_;         ///< what the document shows
    int revision_ = -1; ///< of the document when it showed that
};

class ShownComboBox final : public ShownControl {
public:
    ShownComboBox(ComboBox& box, QComboBox& list, UserActions& user)
        : ShownControl(box, list), box_(box), list_(list), user_(user) {
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
        if (box_.items != items_) {
            items_ = box_.items;
            list_.clear();
            for (const Text& item : items_) list_.addItem(ToQt(item));
        }
        if (list_.currentIndex() != box_.index) list_.setCurrentIndex(box_.index);
        const QString shown = ToQt(box_.text);
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
    std::vector<Text> items_;
};

} // namespace

std::unique_ptr<ShownControl> ShowTextBox(TextBox& box, QWidget& dialog, UserActions& user) {
    if (box.lines) return std::make_unique<ShownLinesBox>(box, *new QPlainTextEdit(&dialog), user);
    return std::make_unique<ShownLineBox>(box, *new QLineEdit(&dialog), user);
}

std::unique_ptr<ShownControl> ShowComboBox(ComboBox& box, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownComboBox>(box, *new QComboBox(&dialog), user);
}

} // namespace ostrel::desktop

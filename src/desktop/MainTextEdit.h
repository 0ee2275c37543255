#pragma once

#include <QPlainTextEdit>
#include <QTextBlock>

#include "text/Text.h"

namespace ostrel::desktop {

/// Who keeps the text that a `MainTextEdit` shows, with its history and colours. Positions are those of the
/// document.
class TextKeeper {
public:
    virtual ~TextKeeper() = default;
    virtual Text Part(int start, int end) const = 0;
    /// Puts a text in the place of the selection.
    virtual void Insert(const Text& text) = 0;
    /// Puts a text there, in one step with taking the selection away if it is that what moves.
    virtual void Drop(int position, const Text& text, bool moves) = 0;
    virtual bool CanUndo() const = 0;
    virtual bool CanRedo() const = 0;
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    /// Gives a block its colours before it is drawn.
    virtual void Colour(const QTextBlock& block) = 0;
};

/// An edit control whose text is kept by somebody else. Undo, redo, paste and drop are passed on, and copies
/// come from there, since the control itself does not keep every character.
class MainTextEdit final : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

    /// Set before the first event comes.
    TextKeeper* keeper = nullptr;
    /// Brings the colours of the blocks in sight up to date.
    void ColourSeen();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace ostrel::desktop

#include "desktop/FormKeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <algorithm>
#include <array>

#include "desktop/QtText.h"

namespace ostrel::desktop {

namespace {

/// What a text box knows how to do by itself, with whatever is held.
bool IsEditing(const QKeyEvent& event) {
    static constexpr std::array Keys{Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,
                                     Qt::Key_Home,   Qt::Key_End,    Qt::Key_PageUp,   Qt::Key_PageDown,
                                     Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Backspace};
    static constexpr std::array Chords{QKeySequence::Copy,      QKeySequence::Cut,  QKeySequence::Paste,
                                       QKeySequence::SelectAll, QKeySequence::Undo, QKeySequence::Redo};
    return std::find(Keys.begin(), Keys.end(), event.key()) != Keys.end() ||
           std::any_of(Chords.begin(), Chords.end(),
                       [&event](QKeySequence::StandardKey chord) { return event.matches(chord); });
}

bool IsModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           key == Qt::Key_Mode_switch || key == 0 || key == Qt::Key_unknown;
}

} // namespace

KeyStroke StrokeOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const Text key = IsEnter(event) ? Text("Enter") : FromQt(QKeySequence(event.key()).toString());
    return {key, held.testFlag(Qt::ShiftModifier), held.testFlag(Qt::ControlModifier),
            held.testFlag(Qt::AltModifier)};
}

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool IsFormKey(const QKeyEvent& event) {
    if (IsModifier(event.key()) || IsEditing(event)) return false;
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35) return true;
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    // Both together are how some keyboards type a third character of a key.
    const bool typed = held == (Qt::ControlModifier | Qt::AltModifier) && !event.text().isEmpty() &&
                       event.text().at(0).isPrint();
    return held && !typed;
}

} // namespace ostrel::desktop

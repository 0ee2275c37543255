#pragma once

#include "ui/Form.h"

class QKeyEvent;

namespace ostrel::desktop {

/// A key as forms hear it.
KeyStroke StrokeOf(const QKeyEvent& event);
/// Enter of either block.
bool IsEnter(const QKeyEvent& event);
/// A chord or a function key, which is a form's to answer: no typing, no moving of a caret, no work with the
/// clipboard.
bool IsFormKey(const QKeyEvent& event);

} // namespace ostrel::desktop

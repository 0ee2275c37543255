#pragma once

#include <variant>

#include "platform/Screen.h"

namespace ostrel {

class Control;

// Where a dialog is shown. Lengths are twips; whatever is asked, the dialog is moved so far that it lies on
// the screen.

/// With its top left corner at that place of the screen.
struct At {
    Long left = 0, top = 0;
};
/// In the middle of the screen.
struct Centred {};
/// 120 twips to the right of the top left corner of a control in an open form, and 1200 above it.
struct Beside {
    const Control& control;
};
/// That far from the top left corner of the component itself, whose place the host tells.
struct FromComponent {
    Long left = 0, top = 0;
};
using DialogPlace = std::variant<At, Centred, Beside, FromComponent>;

/// Moves a form so that it lies on the screen; one that is larger sticks to the top left.
Bounds FitOnScreen(Bounds form, const Bounds& area);
/// Moves it to the middle of the screen.
Bounds CentreOnScreen(Bounds form, const Bounds& area);

} // namespace ostrel

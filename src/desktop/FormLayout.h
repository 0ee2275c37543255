#pragma once

#include "desktop/ShownControl.h"

namespace ostrel::desktop {

using ShownControls = std::vector<std::unique_ptr<ShownControl>>;

/// Arranges the controls of a form in its dialog, in the order of their declaration: labels before their
/// boxes, small buttons beside the box they serve, frames around what lies in them, lists and large texts as
/// wide as the dialog, and the buttons that end it at the bottom.
void ArrangeForm(QWidget& dialog, const ShownControls& controls);

} // namespace ostrel::desktop

#pragma once

#include <QIcon>

#include "control/Children.h"

namespace ostrel::desktop {

/// The picture of a default button, drawn for any size and scale; grey where it is
/// disabled.
QIcon ToolbarGlyph(ToolbarAction action);

} // namespace ostrel::desktop

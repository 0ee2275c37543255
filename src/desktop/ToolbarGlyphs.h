#pragma once

#include <QIcon>

#include "control/ToolbarAction.h"

namespace ostrel::desktop {

/// The picture of a default button, drawn anew at whatever size and scale it is asked for; grey where it is
/// disabled.
QIcon ToolbarGlyph(ToolbarAction action);

} // namespace ostrel::desktop

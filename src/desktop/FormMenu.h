#pragma once

#include <QPoint>

#include "ui/Controls.h"

class QWidget;

namespace ostrel::desktop {

/// Opens a menu at a place of the screen and returns the item that the user chose; null for none.
MenuItem* AskMenu(const Menu& menu, QWidget& owner, QPoint place);

} // namespace ostrel::desktop

#pragma once

#include <QPixmap>

#include "text/Text.h"

namespace ostrel::desktop {

/// Returns the picture at the component's path; null if there is none that can be shown.
QPixmap LoadPicture(const Picture& picture);

} // namespace ostrel::desktop

#pragma once

#include <QPixmap>

#include "text/Text.h"

namespace ostrel::desktop {

/// The picture of the component's path; null where there is none that can be shown.
QPixmap LoadPicture(const Picture& picture);

} // namespace ostrel::desktop

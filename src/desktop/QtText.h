#pragma once

#include <QString>

#include "text/Text.h"

namespace ostrel::desktop {

/// A text of the component as Qt shows it.
QString ToQt(TextView text);
/// A text of Qt as the component knows it; characters outside the code page become "?".
Text FromQt(const QString& text);

} // namespace ostrel::desktop

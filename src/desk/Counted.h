#pragma once

#include <QLocale>

namespace ostrel::desk {

/// "1 row", "100,000 rows".
inline QString Counted(qint64 count, const QString& thing) {
    return QLocale(QLocale::English).toString(count) + " " + thing + (count == 1 ? "" : "s");
}

} // namespace ostrel::desk

#include "desktop/QtText.h"

#include <QList>

#include "text/CodePage.h"

namespace ostrel::desktop {

QString ToQt(TextView text) {
    QString shown;
    shown.reserve(static_cast<qsizetype>(text.size()));
    for (const char byte : text)
        shown += QChar(static_cast<char16_t>(ScalarOfByte(static_cast<unsigned char>(byte))));
    return shown;
}

Text FromQt(const QString& text) {
    Text result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const uint scalar : text.toUcs4()) {
        const auto byte = ByteOfScalar(static_cast<char32_t>(scalar));
        result += byte ? static_cast<char>(*byte) : '?';
    }
    return result;
}

} // namespace ostrel::desktop

#include "desktop/PaneAddress.h"

#include <QFileInfo>

#include "desktop/QtText.h"
#include "platform/native/NativePaths.h"
#include "text/CodePage.h"

namespace ostrel::desktop {

namespace {

/// A single letter in front of a colon is a drive, two or more are a scheme.
bool HasScheme(const Text& address) {
    const std::size_t colon = address.find(':');
    return colon != Text::npos && colon >= 2 && address.find_first_of("\\/#?") > colon;
}

bool IsPathWithDrive(const QString& path) { return path.size() > 2 && path[0] == '/' && path[2] == ':'; }

QUrl UrlOfPath(const Text& path) {
    const auto system = NativePaths().ToSystem(path);
    return system ? QUrl::fromLocalFile(QString::fromStdString(*system)) : QUrl();
}

} // namespace

QUrl UrlOf(const Text& address) {
    if (HasScheme(address)) {
        QUrl url(ToQt(address));
        if (url.isLocalFile() && IsPathWithDrive(url.path())) url.setPath(url.path().mid(3));
        return url;
    }
    if (StartsWithText(address, "www.")) return QUrl(QStringLiteral("http://") + ToQt(address));
    const QUrl whole = UrlOfPath(address);
    const std::size_t part = address.find('#');
    if (part == Text::npos || QFileInfo::exists(whole.toLocalFile())) return whole;
    QUrl url = UrlOfPath(address.substr(0, part));
    url.setFragment(ToQt(TextView(address).substr(part + 1)));
    return url;
}

bool IsBlank(const QUrl& url) { return url.scheme() == QLatin1String("about"); }

Text AddressOf(const QUrl& url) {
    if (!url.isLocalFile() || url.hasQuery()) return FromQt(url.toString(QUrl::FullyEncoded));
    const auto path = NativePaths::FromSystem(url.toLocalFile().toStdString());
    if (!path) return FromQt(url.toString(QUrl::FullyEncoded));
    return url.hasFragment() ? *path + "#" + FromQt(url.fragment(QUrl::FullyDecoded)) : *path;
}

} // namespace ostrel::desktop

#pragma once

#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

class QWebEngineProfile;

namespace ostrel::desktop {

/// Local files as frames and pop-up windows get them: under an address of their own scheme, each from an
/// origin that no script can look into. A page shows its frames so, and still cannot read them. The host of
/// the address is drawn anew for each process, so that a remote page cannot name a local file.
class FrameFiles final : public QWebEngineUrlSchemeHandler {
public:
    /// Serves the profile, which it must outlive.
    explicit FrameFiles(QWebEngineProfile& profile);

    /// Makes the scheme known to the engine; once, before the first profile of the process is made.
    static void RegisterScheme();
    static bool IsFrameFile(const QUrl& url);
    /// The address under which a local file is served.
    static QUrl AddressOf(const QUrl& file);
    /// The local file of such an address; every other address as it is.
    static QUrl FileOf(const QUrl& address);

    void requestStarted(QWebEngineUrlRequestJob* job) override;
};

} // namespace ostrel::desktop

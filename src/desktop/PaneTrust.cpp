#include "desktop/PaneTrust.h"

#include <QMimeDatabase>
#include <QWebEngineDownloadRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>

#include "desktop/PaneSockets.h"

namespace ostrel::desktop {

namespace {

/// Content on this machine, or in the page itself.
bool IsLocal(const QUrl& url) {
    for (const char* scheme : {"file", "data", "blob", "about", "qrc", "chrome", "devtools"})
        if (url.scheme() == QLatin1String(scheme)) return true;
    return FrameFiles::IsFrameFile(url);
}

bool IsRemote(const QUrl& url) { return url.scheme().startsWith(QLatin1String("http")); }

/// A document inside a page, whose text a script of the page could read if both came from one origin.
bool IsInnerDocument(QWebEngineUrlRequestInfo::ResourceType type) {
    return type == QWebEngineUrlRequestInfo::ResourceTypeSubFrame ||
           type == QWebEngineUrlRequestInfo::ResourceTypeObject ||
           type == QWebEngineUrlRequestInfo::ResourceTypePluginResource;
}

/// Data that the engine would hand to a script of the page as text, though it comes as a part of the page.
bool IsReadAsText(const QUrl& file) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(FrameFiles::FileOf(file).toLocalFile());
    return type.inherits("application/json") || type.name().endsWith("json") || type.name() == "text/vtt";
}

/// Whether a remote page is behind the request. To the engine the first party of a step in the history is the
/// page that the step leaves: it leads to where the user has been, so that page need not be trusted.
bool IsOfRemotePage(const QWebEngineUrlRequestInfo& request) {
    const bool stepOfHistory =
        request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame &&
        request.navigationType() == QWebEngineUrlRequestInfo::NavigationTypeBackForward;
    return IsRemote(request.initiator()) || (!stepOfHistory && IsRemote(request.firstPartyUrl()));
}

/// What pages are made of.
bool IsPartOfPage(QWebEngineUrlRequestInfo::ResourceType type) {
    switch (type) {
    case QWebEngineUrlRequestInfo::ResourceTypeMainFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeStylesheet:
    case QWebEngineUrlRequestInfo::ResourceTypeScript:
    case QWebEngineUrlRequestInfo::ResourceTypeImage:
    case QWebEngineUrlRequestInfo::ResourceTypeFontResource:
    case QWebEngineUrlRequestInfo::ResourceTypeMedia:
    case QWebEngineUrlRequestInfo::ResourceTypeFavicon:
        return true;
    default:
        return false;
    }
}

} // namespace

PaneTrust::PaneTrust(QWebEngineProfile& profile) : frameFiles_(profile) {
    RefuseSockets(profile);
    profile.setUrlRequestInterceptor(this);
    profile.setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profile.setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest* download) { download->cancel(); });
    QWebEngineSettings& settings = *profile.settings();
    // Without these the engine shows no pictures, style sheets and frames of a local page either, be they
    // files or remote; what scripts may read of them is settled below.
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    settings.setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, true);
    settings.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(QWebEngineSettings::JavascriptCanPaste, false);
    settings.setAttribute(QWebEngineSettings::ScreenCaptureEnabled, false);
    settings.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings.setAttribute(QWebEngineSettings::FullScreenSupportEnabled, false);
    settings.setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    settings.setDefaultTextEncoding("windows-1252");
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

void PaneTrust::Hold(QWebEnginePage& page) {
    connect(&page, &QWebEnginePage::featurePermissionRequested, &page,
            [&page](const QUrl& origin, QWebEnginePage::Feature feature) {
                page.setFeaturePermission(origin, feature, QWebEnginePage::PermissionDeniedByUser);
            });
    connect(&page, &QWebEnginePage::fullScreenRequested, &page,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(&page, &QWebEnginePage::registerProtocolHandlerRequested, &page,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
}

void PaneTrust::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const QUrl url = request.requestUrl();
    const auto type = request.resourceType();
    if (offline_ && !IsLocal(url)) return request.block(true);
    if (!url.isLocalFile() && !FrameFiles::IsFrameFile(url)) return;
    // Local files are no business of remote pages.
    if (IsOfRemotePage(request)) return request.block(true);
    if (url.isLocalFile() && IsInnerDocument(type)) return request.redirect(FrameFiles::AddressOf(url));
    const bool shown = IsInnerDocument(type) || (IsPartOfPage(type) && !IsReadAsText(url));
    if (!shown) request.block(true);
}

} // namespace ostrel::desktop

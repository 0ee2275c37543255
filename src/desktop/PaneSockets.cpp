#include "desktop/PaneSockets.h"

#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

namespace ostrel::desktop {

void RefuseSockets() {
    constexpr const char* Switches = "QTWEBENGINE_CHROMIUM_FLAGS";
    // Keep the host's own switches.
    qputenv(Switches, qgetenv(Switches) + " --disable-blink-features=WebTransport"
                                          " --force-webrtc-ip-handling-policy=disable_non_proxied_udp");
}

void RefuseSockets(QWebEngineProfile& profile) {
    QWebEngineScript script;
    script.setSourceCode("delete self.RTCPeerConnection; delete self.webkitRTCPeerConnection;");
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    profile.scripts()->insert(script);
}

} // namespace ostrel::desktop

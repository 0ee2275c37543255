#pragma once

#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

#include "desktop/FrameFiles.h"

namespace ostrel::desktop {

/// What pages may do. They are the host's own and are trusted to run scripts and to show local files, and to
/// nothing more: no remote content while the pane is offline, no downloads, no camera, microphone, place or
/// notifications, no reading of the clipboard. A script of a local page can read no other local page or data
/// file: its requests for files are blocked, and its frames come from `FrameFiles`. The pictures and style
/// sheets that it shows are readable to it.
class PaneTrust final : public QWebEngineUrlRequestInterceptor {
public:
    /// From now on all pages of the profile are held to it. It must outlive the profile's pages.
    explicit PaneTrust(QWebEngineProfile& profile);

    bool Offline() const { return offline_; }
    void Offline(bool offline) { offline_ = offline; }
    /// For each page of the profile as it is made.
    static void Hold(QWebEnginePage& page);

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

private:
    FrameFiles frameFiles_;
    bool offline_ = false;
};

} // namespace ostrel::desktop

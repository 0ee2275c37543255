#pragma once

#include <QWebEnginePage>
#include <functional>

namespace ostrel::desktop {

/// A page of the engine that asks before it goes anywhere.
class PanePage final : public QWebEnginePage {
public:
    /// Whether the page may go there.
    using Ask = std::function<bool(const QUrl& url, NavigationType type, bool mainFrame)>;
    /// The page of a new window, or null to refuse it.
    using MakeWindow = std::function<QWebEnginePage*()>;

    PanePage(QWebEngineProfile& profile, Ask ask, MakeWindow makeWindow)
        : QWebEnginePage(&profile), ask_(std::move(ask)), makeWindow_(std::move(makeWindow)) {}

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool mainFrame) override {
        return !ask_ || ask_(url, type, mainFrame);
    }
    QWebEnginePage* createWindow(WebWindowType) override { return makeWindow_ ? makeWindow_() : nullptr; }

private:
    Ask ask_;
    MakeWindow makeWindow_;
};

} // namespace ostrel::desktop

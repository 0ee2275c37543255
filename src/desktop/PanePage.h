#pragma once

#include <QElapsedTimer>
#include <QWebEnginePage>
#include <functional>

namespace ostrel::desktop {

/// A page of the engine that asks before each navigation. Script dialogs are suppressed if they come in
/// a long row without a pause: each blocks the whole application until it is answered.
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

    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& value,
                          QString* answer) override;

private:
    /// Shows a message by `show` unless it is one too many.
    template <class Show>
    bool ShowInRow(Show show) {
        inRow_ = sinceMessage_.isValid() && sinceMessage_.elapsed() < Pause ? inRow_ + 1 : 1;
        const bool answer = inRow_ <= MostInRow && show();
        sinceMessage_.start();
        return answer;
    }

    static constexpr qint64 Pause = 500; ///< in milliseconds
    static constexpr int MostInRow = 10;

    Ask ask_;
    MakeWindow makeWindow_;
    QElapsedTimer sinceMessage_;
    int inRow_ = 0;
};

} // namespace ostrel::desktop

#include "desktop/PanePage.h"

namespace ostrel::desktop {

void PanePage::javaScriptAlert(const QUrl& origin, const QString& text) {
    ShowInRow([&] {
        QWebEnginePage::javaScriptAlert(origin, text);
        return true;
    });
}

bool PanePage::javaScriptConfirm(const QUrl& origin, const QString& text) {
    return ShowInRow([&] { return QWebEnginePage::javaScriptConfirm(origin, text); });
}

bool PanePage::javaScriptPrompt(const QUrl& origin, const QString& text, const QString& value,
                                QString* answer) {
    return ShowInRow([&] { return QWebEnginePage::javaScriptPrompt(origin, text, value, answer); });
}

} // namespace ostrel::desktop

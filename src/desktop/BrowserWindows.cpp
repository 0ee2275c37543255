#include "desktop/BrowserWindows.h"

#include <QApplication>
#include <QTimer>
#include <QWebEngineView>

#include "desktop/FrameFiles.h"
#include "desktop/PanePage.h"
#include "desktop/PaneTrust.h"
#include "desktop/Zoom.h"

namespace ostrel::desktop {

namespace {

/// A page that opens windows without end must not take the desktop with it.
constexpr std::size_t MostWindows = 32;

void CloseIfWritten(QWebEngineView* view) {
    const QString scheme = view->url().scheme();
    if (scheme.isEmpty() || scheme == QLatin1String("about") || scheme == QLatin1String("blob"))
        view->close();
}

} // namespace

BrowserWindows::~BrowserWindows() {
    for (const QPointer<QWebEngineView>& window : windows_) delete window.data();
}

QWebEnginePage* BrowserWindows::Open() {
    std::erase_if(windows_, [](const QPointer<QWebEngineView>& window) { return !window; });
    if (windows_.size() >= MostWindows) return nullptr;
    auto* view = new QWebEngineView;
    // The page that opened the window may keep a reference to it and must not read its content.
    const auto isolate = [view](const QUrl& url, QWebEnginePage::NavigationType, bool mainFrame) {
        if (!mainFrame || !url.isLocalFile()) return true;
        QTimer::singleShot(0, view, [view, url] { view->load(FrameFiles::AddressOf(url)); });
        return false;
    };
    auto* page = new PanePage(profile_, isolate, [this] { return Open(); });
    page->setParent(view);
    PaneTrust::Hold(*page);
    view->setPage(page);
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->setWindowIcon(QApplication::windowIcon());
    view->resize(900, 700);
    QObject::connect(page, &QWebEnginePage::titleChanged, view, &QWidget::setWindowTitle);
    QObject::connect(page, &QWebEnginePage::windowCloseRequested, view, &QWidget::close);
    AddZoomShortcuts(*view, *page);
    view->show();
    windows_.emplace_back(view);
    return page;
}

void BrowserWindows::OpenerLeaves() {
    const auto windows = windows_;
    for (const QPointer<QWebEngineView>& window : windows) {
        if (!window) continue;
        QWebEngineView* const view = window;
        if (view->page()->isLoading())
            QObject::connect(
                view, &QWebEngineView::loadFinished, view, [view] { CloseIfWritten(view); },
                Qt::SingleShotConnection);
        else
            CloseIfWritten(view);
    }
}

std::vector<QWidget*> BrowserWindows::Standing() const {
    std::vector<QWidget*> standing;
    for (const QPointer<QWebEngineView>& window : windows_)
        if (window) standing.push_back(window);
    return standing;
}

} // namespace ostrel::desktop

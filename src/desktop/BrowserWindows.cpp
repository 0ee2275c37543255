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

} // namespace

BrowserWindows::~BrowserWindows() {
    for (const QPointer<QWidget>& window : windows_) delete window.data();
}

QWebEnginePage* BrowserWindows::Open() {
    std::erase_if(windows_, [](const QPointer<QWidget>& window) { return !window; });
    if (windows_.size() >= MostWindows) return nullptr;
    auto* view = new QWebEngineView;
    // The page that opened the window may hold on to it, and must not read what it shows.
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

std::vector<QWidget*> BrowserWindows::Standing() const {
    std::vector<QWidget*> standing;
    for (const QPointer<QWidget>& window : windows_)
        if (window) standing.push_back(window);
    return standing;
}

} // namespace ostrel::desktop

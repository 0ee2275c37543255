#pragma once

#include <QPointer>
#include <QWebEngineProfile>
#include <vector>

class QWebEnginePage;
class QWebEngineView;
class QWidget;

namespace ostrel::desktop {

/// The browser windows that pages have opened beside the pane. Each has a page of the pane's profile; closing
/// one ends it, and the rest end with this.
class BrowserWindows {
public:
    explicit BrowserWindows(QWebEngineProfile& profile) : profile_(profile) {}
    ~BrowserWindows();
    BrowserWindows(const BrowserWindows&) = delete;
    BrowserWindows& operator=(const BrowserWindows&) = delete;

    /// Opens an empty window and returns its page, which it owns; null if too many windows are open.
    QWebEnginePage* Open();
    /// The page of the pane is about to go. Windows that show nothing but what it wrote into them go with it:
    /// a script in there is of its origin, and could read the page that comes next.
    void OpenerLeaves();
    /// The open windows, oldest first.
    std::vector<QWidget*> Standing() const;

private:
    QWebEngineProfile& profile_;
    std::vector<QPointer<QWebEngineView>> windows_;
};

} // namespace ostrel::desktop

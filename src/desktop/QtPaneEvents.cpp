#include <QTimer>
#include <QWebEngineHistory>
#include <QWebEngineScript>

#include "desktop/PaneAddress.h"
#include "desktop/QtPane.h"
#include "desktop/QtText.h"

namespace ostrel::desktop {

namespace {

const Text Done = "done";

/// Until a page's title is known the engine reports its file name or its address as the title.
bool IsStandIn(const QString& title, const QUrl& url) {
    return title.isEmpty() || url.toString().endsWith(title);
}

} // namespace

bool QtPane::HostAllows(const QUrl& url, bool mainFrame) {
    Flag cancel = false;
    Text address = Told(url), target;
    Tell([&](BrowserSink& sink) { sink.BeforeNavigate2(address, target, cancel, mainFrame); });
    return !cancel;
}

bool QtPane::MayGo(const QUrl& url, QWebEnginePage::NavigationType type, bool mainFrame) {
    if (!mainFrame) return type == QWebEnginePage::NavigationTypeRedirect || HostAllows(url, false);
    if (FrameFiles::IsFrameFile(url)) {
        // A link in a frame that leads out of it: the page itself is an ordinary file again.
        QTimer::singleShot(0, page_.get(), [this, file = FrameFiles::FileOf(url)] { page_->load(file); });
        return false;
    }
    if (type == QWebEnginePage::NavigationTypeReload) {
        Begin(Way::Refresh, url);
        return true;
    }
    // A server redirects before any content has come; later it is the page that navigates, with a new
    // request. For a page that is loaded again the engine does not report when it has come.
    if (type == QWebEnginePage::NavigationTypeRedirect && load_ && !load_->committed &&
        load_->url != shown_) {
        load_->url = url;
        return true;
    }
    if (AskedAgain() && load_->url == url) return true;
    const unsigned request = ++requests_;
    const bool allowed = HostAllows(url, true);
    // The listener may have sent the pane elsewhere.
    if (request != requests_) return false;
    asked_.reset();
    if (!allowed) return false;
    Begin(Way::Plain, url);
    if (load_) load_->step = type == QWebEnginePage::NavigationTypeBackForward;
    return true;
}

QWebEnginePage* QtPane::OpenWindow() {
    Tell([](BrowserSink& sink) { sink.NewWindow2(true); });
    return windows_.Open();
}

void QtPane::Begin(Way way, const QUrl& url) {
    // What is being laid out still would keep the next page waiting.
    if (way == Way::Plain && load_ && load_->committed) AskForLife();
    // What has come and is left before it was laid out is complete all the same.
    if (load_ && load_->loaded) Finished(Done);
    Stopped();
    if (way == Way::Plain) windows_.OpenerLeaves();
    load_ = Load{way, url, ++loads_};
    hovering_ = false;
    notice_.hide();
    Tell([](BrowserSink& sink) { sink.DownloadBegin(); });
    TellStatus("Opening page " + Told(url) + "...");
}

void QtPane::Halted() {
    const bool onView = load_ && load_->way != Way::Quiet && (load_->committed || load_->way == Way::Refresh);
    onView ? Finished({}) : Stopped();
}

void QtPane::Stopped() {
    if (!load_) return;
    const bool heard = load_->way != Way::Quiet;
    load_.reset();
    if (heard) Tell([](BrowserSink& sink) { sink.DownloadComplete(); });
}

void QtPane::LoadingChanged(const QWebEngineLoadingInfo& info) {
    // What was vetoed or replaced also comes to its end, and is no longer the load in hand.
    const bool inHand = Coming() && !AskedAgain() && (load_->started || load_->url == info.url());
    switch (info.status()) {
    case QWebEngineLoadingInfo::LoadStartedStatus:
        return Started(info.url());
    case QWebEngineLoadingInfo::LoadStoppedStatus:
        // Where the host forbade the page to lead on, the engine names the place that it led to.
        if (Coming() && load_->started && (load_->committed || load_->url == info.url())) Halted();
        if (asked_ && *asked_ == info.url()) Refused(Told(info.url()));
        return;
    case QWebEngineLoadingInfo::LoadSucceededStatus:
        return inHand ? AwaitLayout() : void();
    case QWebEngineLoadingInfo::LoadFailedStatus:
        return inHand ? Finished("Can't open page " + Told(load_->url)) : void();
    }
}

void QtPane::Started(const QUrl& url) {
    // A script that goes back to a blank page: the engine sends no request for it, and it cannot be vetoed.
    if (!Coming() && !asked_ && IsBlank(url)) {
        (void)HostAllows(url, true);
        Begin(Way::Plain, url);
    }
    if (load_) load_->started = true;
}

void QtPane::AwaitLayout() {
    if (load_->way == Way::Quiet) return Finished(Done);
    shown_ = page_->url();
    load_->loaded = true;
    // To answer it the engine has to lay out the whole page; one that is hidden it would not paint. A world
    // of its own keeps the scripts of the page out of the question.
    page_->runJavaScript("document.documentElement && document.documentElement.scrollHeight",
                         QWebEngineScript::ApplicationWorld,
                         [this, pane = QPointer<QTimer>(&settle_), number = load_->number](const QVariant&) {
                             if (pane && load_ && load_->number == number) Finished(Done);
                         });
}

void QtPane::Refused(const Text& address) {
    asked_.reset();
    TellStatus("Can't open page " + address);
}

void QtPane::UrlChanged() {
    if (load_ && load_->loaded) Finished(Done);
    shown_ = page_->url();
    if (!load_) return MovedInsidePage();
    Commit();
    // Directly after a stopped page the engine reports neither the start nor the end of a blank one.
    if (IsBlank(shown_) && !page_->isLoading()) Finished(Done);
}

void QtPane::MovedInsidePage() {
    if (asked_ == shown_) asked_.reset();
    const Text url = Told(shown_);
    Tell([&](BrowserSink& sink) { sink.NavigateComplete2(url, true); });
    TellStates();
    Tell([&](BrowserSink& sink) { sink.DocumentComplete(url, true); });
}

void QtPane::Commit() {
    if (!load_ || load_->committed) return;
    load_->committed = true;
    if (!load_->halting) deaf_.stop();
    if (load_->way != Way::Plain) return;
    const Text url = Told(shown_);
    Tell([&](BrowserSink& sink) { sink.NavigateComplete2(url, true); });
}

void QtPane::TitleChanged(const QString& title) {
    if (load_ && (!load_->committed || load_->way == Way::Quiet || IsStandIn(title, shown_))) return;
    Tell([&](BrowserSink& sink) { sink.TitleChange(FromQt(title)); });
}

void QtPane::Hovered(const QString& url) {
    // The engine also reports leaving links that were never hovered.
    if (url.isEmpty() && !hovering_) return;
    hovering_ = !url.isEmpty();
    TellStatus(hovering_ ? Told(QUrl(url)) : Text());
}

void QtPane::Finished(const Text& status) {
    if (!load_) return;
    if (!load_->loaded) shown_ = page_->url();
    Commit();
    const Load load = *load_;
    const Text url = Told(shown_);
    const auto ends = [this] { return !load_; };
    if (load.way == Way::Quiet) {
        load_.reset();
        return;
    }
    Tell([&](BrowserSink& sink) { sink.TitleChange(LocationName()); });
    if (ends()) return;
    TellStates();
    if (ends()) return;
    // A listener may start the next load from here on; the events of this one are still completed.
    load_.reset();
    if (!status.empty()) TellStatus(status);
    if (load.way == Way::Plain || status != Done)
        Tell([&](BrowserSink& sink) { sink.DocumentComplete(url, true); });
    Tell([](BrowserSink& sink) { sink.DownloadComplete(); });
}

void QtPane::TellStates() {
    const bool forward = page_->history()->canGoForward();
    const bool back = page_->history()->canGoBack();
    if (std::exchange(canForward_, forward) != forward)
        Tell([&](BrowserSink& sink) { sink.CommandStateChange(HistoryCommand::Forward, forward); });
    if (std::exchange(canBack_, back) != back)
        Tell([&](BrowserSink& sink) { sink.CommandStateChange(HistoryCommand::Back, back); });
}

void QtPane::TellStatus(const Text& text) {
    Tell([&](BrowserSink& sink) { sink.StatusTextChange(text); });
}

} // namespace ostrel::desktop

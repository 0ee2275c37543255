#include "desktop/QtPane.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <csignal>

#include "desktop/PaneAddress.h"
#include "desktop/QtText.h"
#include "text/CodePage.h"

namespace ostrel::desktop {

namespace {

constexpr TextView BlankPage = "about:blank";
/// Names of pages are kept for as long as a history may lead back to them.
constexpr qsizetype MostNames = 10'000;
/// How long a page that was told to stop may leave each of two questions open, in milliseconds.
constexpr int Patience = 450;
/// How long a page that is to be printed may take to load, in milliseconds.
constexpr int LongestLoad = 60'000;

QString Quoted(const QString& text) {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

} // namespace

QtPane::QtPane(QWidget& host)
    : trust_(profile_), view_(std::make_unique<QWebEngineView>(&host)),
      page_(std::make_unique<PanePage>(
          profile_,
          [this](const QUrl& url, QWebEnginePage::NavigationType type, bool mainFrame) {
              return MayGo(url, type, mainFrame);
          },
          [this] { return OpenWindow(); })),
      windows_(profile_), printer_(*view_) {
    PaneTrust::Hold(*page_);
    view_->setPage(page_.get());
    auto* layout = new QVBoxLayout(&host);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    notice_.setObjectName("paneNotice");
    notice_.setWordWrap(true);
    notice_.setMargin(12);
    // Both colours are fixed, so that they are read on dark desktops as well.
    notice_.setStyleSheet("background: #FCE8E6; color: #1F2933;");
    notice_.hide();
    layout->addWidget(&notice_);
    layout->addWidget(view_.get(), 1);
    ConnectPage();
}

QtPane::~QtPane() {
    sink_ = nullptr;
    page_->disconnect();
    view_->setPage(nullptr);
}

void QtPane::ConnectPage() {
    QWebEnginePage* const page = page_.get();
    const auto connect = [page](auto signal, auto handler) {
        QObject::connect(page, signal, page, std::move(handler));
    };
    connect(&QWebEnginePage::loadingChanged,
            [this](const QWebEngineLoadingInfo& info) { LoadingChanged(info); });
    connect(&QWebEnginePage::loadProgress, [this](int percent) {
        if (Coming() && load_->way != Way::Quiet)
            Tell([&](BrowserSink& sink) { sink.ProgressChange(percent, 100); });
    });
    connect(&QWebEnginePage::urlChanged, [this](const QUrl&) { UrlChanged(); });
    connect(&QWebEnginePage::titleChanged, [this](const QString& title) { TitleChanged(title); });
    connect(&QWebEnginePage::linkHovered, [this](const QString& url) { Hovered(url); });
    connect(&QWebEnginePage::renderProcessTerminated,
            [this](QWebEnginePage::RenderProcessTerminationStatus, int) { ProcessEnded(); });
    QObject::connect(&profile_, &QWebEngineProfile::downloadRequested, page,
                     [this](const QWebEngineDownloadRequest* download) {
                         TellStatus("Can't open page " + Told(download->url()));
                         // The engine does not always report that a load has failed.
                         if (load_ && !load_->committed && load_->url == download->url()) Stopped();
                     });
    // For some pages the engine takes another widget, and the focus of the old one would go anywhere.
    QObject::connect(qApp, &QApplication::focusChanged, view_.get(), [this](QWidget* old, QWidget* now) {
        if (old && now && view_->isAncestorOf(old) && !old->isVisible() && !view_->isAncestorOf(now))
            QTimer::singleShot(0, view_.get(), [this] { Focus(); });
    });
    deaf_.setSingleShot(true);
    deaf_.setInterval(Patience);
    QObject::connect(&deaf_, &QTimer::timeout, page, [this] { NoLife(); });
    // Frames inside the page change the history with no load of the page. A step that is about to begin, and
    // may yet be vetoed, changes the actions as well, so they are asked a while later.
    settle_.setSingleShot(true);
    settle_.setInterval(300);
    QObject::connect(&settle_, &QTimer::timeout, page, [this] {
        if (!load_) TellStates();
    });
    for (const auto action : {QWebEnginePage::Back, QWebEnginePage::Forward})
        QObject::connect(page->action(action), &QAction::enabledChanged, &settle_,
                         [this] { settle_.start(); });
}

void QtPane::Navigate(const Text& url) {
    const QUrl address = UrlOf(url);
    if (named_.size() >= MostNames) named_.clear();
    if (address.isLocalFile()) named_[address] = url;
    if (url == BlankPage && shown_.isEmpty() && !load_) {
        // A new pane is blank already, so a navigation to the blank page raises no events.
        load_ = Load{Way::Quiet, address};
        page_->load(address);
        return;
    }
    asked_ = address;
    QTimer::singleShot(0, page_.get(), [this, url, address, request = ++requests_] {
        if (request != requests_ || !asked_) return;
        address.isValid() ? AskEngine(address) : Refused(url);
    });
}

void QtPane::AskEngine(const QUrl& url) {
    // The engine sends no request for blank pages and for steps inside the current page.
    const bool inside =
        url.hasFragment() && url != shown_ && url.matches(shown_, QUrl::RemoveFragment) && !IsBlank(url);
    if (inside || IsBlank(url)) {
        const unsigned request = requests_;
        const bool allowed = HostAllows(url, true);
        if (request != requests_) return;
        asked_.reset();
        if (!allowed) return;
        if (!inside) Begin(Way::Plain, url);
    }
    // A script given as an address leads nowhere.
    if (url.scheme() == QLatin1String("javascript")) asked_.reset();
    page_->load(url);
}

void QtPane::Navigate(const Text& url, const Text& target) {
    for (const TextView own : {"", "_self", "_top", "_parent"})
        if (EqualText(target, own)) return Navigate(url);
    const QUrl address = UrlOf(url);
    if (EqualText(target, "_blank")) {
        if (QWebEnginePage* window = OpenWindow()) window->load(address);
        return;
    }
    page_->runJavaScript("window.open(" + Quoted(address.toString(QUrl::FullyEncoded)) + ", " +
                         Quoted(ToQt(target)) + ");");
}

void QtPane::GoBack() {
    if (page_->history()->canGoBack()) Step(QWebEnginePage::Back, page_->history()->backItem().url());
}

void QtPane::GoForward() {
    if (page_->history()->canGoForward())
        Step(QWebEnginePage::Forward, page_->history()->forwardItem().url());
}

void QtPane::Step(QWebEnginePage::WebAction way, const QUrl& url) {
    if (IsBlank(url)) {
        // The engine sends no request for blank pages.
        asked_.reset();
        const unsigned request = ++requests_;
        if (!HostAllows(url, true) || request != requests_) return;
        Begin(Way::Plain, url);
    }
    page_->triggerAction(way);
}

void QtPane::GoHome() { Navigate(Text(BlankPage)); }

void QtPane::GoSearch() { Navigate(Text(BlankPage)); }

void QtPane::Stop() {
    printer_.Stop();
    ++requests_;
    asked_.reset();
    page_->triggerAction(QWebEnginePage::Stop);
    if (load_) load_->halting = true;
    // The events of a stop are raised after the call.
    QTimer::singleShot(0, page_.get(), [this] {
        if (load_ && load_->halting) Halted();
    });
    AskForLife();
}

void QtPane::AskForLife() {
    // A layout or script without an end ignores the stop and blocks every further page.
    if (deaf_.isActive()) return;
    questions_ = 0;
    PutQuestion();
}

void QtPane::PutQuestion() {
    ++questions_;
    page_->runJavaScript("0", [alarm = QPointer<QTimer>(&deaf_)](const QVariant&) {
        if (alarm) alarm->stop();
    });
    deaf_.start();
}

void QtPane::NoLife() {
    // A page that waits for the user's answer is not deaf.
    if (QApplication::activeModalWidget()) return;
    // The first question may have been lost with the page that was left.
    if (questions_ < 2) return PutQuestion();
    const qint64 process = page_->renderProcessPid();
    if (process > 0) killed_ = ::kill(static_cast<pid_t>(process), SIGKILL) == 0;
}

void QtPane::ProcessEnded() {
    const bool killed = std::exchange(killed_, false);
    if (Coming() && load_->way == Way::Plain && !load_->committed && !load_->again) {
        // It waited for the process of the page that it was to follow, and is lost with it.
        load_->again = true;
        load_->started = false;
        QTimer::singleShot(0, page_.get(), [this] { AskEngineAgain(); });
        return;
    }
    notice_.setText(
        killed ? "This page gave no answer and was ended. Refresh loads it again."
               : "The browser failed at this page, which may be too large for it. Refresh tries again.");
    notice_.show();
    if (load_) Finished("Can't open page " + Told(load_->url));
}

void QtPane::AskEngineAgain() {
    if (!AskedAgain()) return;
    const QWebEngineHistory& history = *page_->history();
    const QUrl& url = load_->url;
    if (load_->step && history.canGoBack() && history.backItem().url() == url)
        page_->triggerAction(QWebEnginePage::Back);
    else if (load_->step && history.canGoForward() && history.forwardItem().url() == url)
        page_->triggerAction(QWebEnginePage::Forward);
    else
        page_->load(url);
}

void QtPane::Refresh2(RefreshLevel level) {
    if (shown_.isEmpty()) return;
    asked_.reset();
    ++requests_;
    if (IsBlank(shown_)) Begin(Way::Refresh, shown_);
    page_->triggerAction(level == RefreshLevel::Completely ? QWebEnginePage::ReloadAndBypassCache
                                                           : QWebEnginePage::Reload);
}

void QtPane::ExecWB(PaneCommand command, PaneCommandOption) {
    if (command == PaneCommand::Print) Print();
    if (command == PaneCommand::Copy) page_->triggerAction(QWebEnginePage::Copy);
    if (command == PaneCommand::SelectAll) page_->triggerAction(QWebEnginePage::SelectAll);
}

void QtPane::Print() {
    // A page that is still loading would be printed blank.
    for (const QDeadlineTimer deadline(LongestLoad); Loading() && !deadline.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    const QString trouble = printer_.Print(FrameFiles::FileOf(shown_));
    if (trouble.isEmpty()) return;
    notice_.setText(trouble);
    notice_.show();
}

Text QtPane::LocationName() const { return FromQt(page_->title()); }

Text QtPane::LocationURL() const { return Told(shown_); }

LoadState QtPane::ReadyState() const {
    using enum LoadState;
    if (asked_) return LoadState::Loading;
    if (load_ && !load_->halting) return load_->committed ? Interactive : LoadState::Loading;
    return shown_.isEmpty() ? Uninitialised : Complete;
}

Text QtPane::DocumentText(const Text& word) const {
    QString property;
    for (const char* known : {"innerHTML", "innerText", "outerHTML", "outerText"})
        if (EqualText(word, known)) property = known;
    if (property.isEmpty()) return {};
    // The answer may come after this call has given up on it.
    struct Answer {
        QString text;
        QPointer<QEventLoop> waiting;
    };
    const auto answer = std::make_shared<Answer>();
    QEventLoop loop;
    answer->waiting = &loop;
    page_->runJavaScript("document.body ? document.body." + property + " : ''",
                         [answer](const QVariant& value) {
                             answer->text = value.toString();
                             if (answer->waiting) answer->waiting->quit();
                         });
    QTimer::singleShot(2000, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return FromQt(answer->text);
}

void QtPane::Focus() { view_->setFocus(); }

Text QtPane::Told(const QUrl& address) const {
    const QUrl url = FrameFiles::FileOf(address);
    const auto named = named_.constFind(url);
    return named == named_.cend() ? AddressOf(url) : *named;
}

} // namespace ostrel::desktop

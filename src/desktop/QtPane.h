#pragma once

#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <memory>
#include <optional>

#include "desktop/BrowserWindows.h"
#include "desktop/PanePage.h"
#include "desktop/PanePrinter.h"
#include "desktop/PaneSockets.h"
#include "desktop/PaneTrust.h"
#include "platform/BrowserPane.h"

namespace ostrel::desktop {

/// A pane with a real browser engine. What the engine signals comes out in this order: BeforeNavigate2,
/// DownloadBegin, StatusTextChange and ProgressChange as they come, NavigateComplete2, TitleChange, what
/// changed of the forward and back states, StatusTextChange "done", DocumentComplete, DownloadComplete. A
/// page is done when it is laid out, which for a large one is long after it has come; the pane is busy until
/// then. A refresh raises no navigation events, and DocumentComplete only if it fails or is stopped; a step
/// inside the current page raises no download events. If a page cannot be loaded the engine shows an error
/// page, and that one completes; the status text is then the error in place of "done". Local pages are
/// reported by the very text given to `Navigate`. The first pane of a process must come before any other use
/// of the engine in it.
class QtPane final : public BrowserPane {
public:
    /// The view fills `host`, which outlives the pane.
    explicit QtPane(QWidget& host);
    ~QtPane() override;

    void Listen(BrowserSink* sink) override { sink_ = sink; }
    void Navigate(const Text& url) override;
    /// A target that names a frame loads there; any other but the page itself opens a window.
    void Navigate(const Text& url, const Text& target) override;
    void GoBack() override;
    void GoForward() override;
    void GoHome() override;
    void GoSearch() override;
    /// A page that does not answer within a second after it, be it in the middle of its layout or in a script
    /// without end, is ended; a line in the pane reports it.
    void Stop() override;
    void Refresh2(RefreshLevel level) override;
    /// Prints the page, copies the selection or selects all; other commands are left alone. A page that is
    /// still loading is printed when it has come. A print without a printer is reported by a line in the
    /// pane.
    void ExecWB(PaneCommand command, PaneCommandOption option) override;
    Text LocationName() const override;
    Text LocationURL() const override;
    bool Busy() const override { return Loading() || printer_.Busy(); }
    LoadState ReadyState() const override;
    bool Offline() const override { return trust_.Offline(); }
    void Offline(bool offline) override { trust_.Offline(offline); }
    /// Empty as well where the engine does not answer within two seconds.
    Text DocumentText(const Text& word) const override;
    void Focus() override;

    QWebEngineView& View() { return *view_; }
    /// How pages are printed.
    PanePrinter& Printer() { return printer_; }
    /// The browser windows beside the pane.
    BrowserWindows& Windows() { return windows_; }

private:
    enum class Way { Quiet, Plain, Refresh };
    /// One load in progress.
    struct Load {
        Way way = Way::Plain;
        QUrl url;
        unsigned number = 0;
        bool started = false;
        bool committed = false;
        bool loaded = false;  ///< all of it has come, and is being laid out
        bool halting = false; ///< it was stopped, and the events of its end are still to come
        bool step = false;    ///< in the history
        /// Asked of the engine once more, since the process of the page before has ended.
        bool again = false;
    };

    void ConnectPage();
    void AskEngine(const QUrl& url);
    void Step(QWebEnginePage::WebAction way, const QUrl& url);
    bool MayGo(const QUrl& url, QWebEnginePage::NavigationType type, bool mainFrame);
    bool HostAllows(const QUrl& url, bool mainFrame);
    QWebEnginePage* OpenWindow();
    void Begin(Way way, const QUrl& url);
    /// Ends the page if it does not answer. Does nothing if an answer is awaited already.
    void AskForLife();
    void PutQuestion();
    void NoLife();
    /// The engine's process of the page has come to its end.
    void ProcessEnded();
    void AskEngineAgain();
    bool Loading() const { return (load_ && !load_->halting) || asked_; }
    void Print();
    /// Whether the load in hand has yet to come, in whole or in part.
    bool Coming() const { return load_ && !load_->loaded; }
    /// Whether the engine has been asked to load it again and has not begun.
    bool AskedAgain() const { return load_ && load_->again && !load_->started; }
    void LoadingChanged(const QWebEngineLoadingInfo& info);
    void Started(const QUrl& url);
    /// The content of the current load has come; its end is reported after layout.
    void AwaitLayout();
    /// Raises the events of the end of the current load; an empty status is not raised.
    void Finished(const Text& status);
    /// The current load was stopped. The part of the page that has come is shown and complete.
    void Halted();
    /// The current load failed or was replaced by another.
    void Stopped();
    /// An address that the engine knows nothing to do with.
    void Refused(const Text& address);
    void UrlChanged();
    void TitleChanged(const QString& title);
    void Hovered(const QString& url);
    void Commit();
    void TellStates();
    void MovedInsidePage();
    void TellStatus(const Text& text);
    Text Told(const QUrl& address) const;
    /// Runs it with the listener where there is one.
    template <class Telling>
    void Tell(Telling telling) {
        if (sink_) telling(*sink_);
    }

    /// Once a process, before the first profile.
    struct Engine {
        Engine() {
            static const bool prepared = [] {
                FrameFiles::RegisterScheme();
                RefuseSockets();
                return true;
            }();
            (void)prepared;
        }
    } engine_;
    QWebEngineProfile profile_;
    PaneTrust trust_;
    std::unique_ptr<QWebEngineView> view_;
    std::unique_ptr<PanePage> page_;
    BrowserWindows windows_;
    PanePrinter printer_;
    QLabel notice_;

    BrowserSink* sink_ = nullptr;
    std::optional<Load> load_;
    unsigned loads_ = 0;
    /// Asked of the pane and not begun yet.
    std::optional<QUrl> asked_;
    /// Tells a request from those that came behind it.
    unsigned requests_ = 0;
    QUrl shown_;
    /// The texts by which hosts named local pages.
    QHash<QUrl, Text> named_;
    std::optional<bool> canForward_, canBack_;
    bool hovering_ = false;
    QTimer settle_;
    QTimer deaf_;
    bool killed_ = false; ///< by this pane; the engine has not reported it yet
    int questions_ = 0;   ///< put to the page since it was last to show that it answers
};

} // namespace ostrel::desktop

#pragma once

#include "control/HelpLoader.h"
#include "control/PaneNavigator.h"

namespace ostrel {

/// Turns the reports of the browser pane into the control's events. Reports of frames inside the page are
/// dropped, and so are those that repeat the last progress, status text or title.
class PaneEvents final : public BrowserSink {
public:
    /// Listens to the pane as long as it lives.
    PaneEvents(Guard& guard, Events& events, Platform& platform, Children& children, LoadClock& clock,
               PaneNavigator& navigator, HelpLoader& help);
    ~PaneEvents() override;
    PaneEvents(const PaneEvents&) = delete;
    PaneEvents& operator=(const PaneEvents&) = delete;

    void BeforeNavigate2(Text& url, Text& targetFrame, Flag& cancel, bool topLevel) override;
    void NavigateComplete2(const Text& url, bool topLevel) override;
    void DocumentComplete(const Text& url, bool topLevel) override;
    void NewWindow2(bool own) override;
    void CommandStateChange(HistoryCommand command, bool enable) override;
    void ProgressChange(Long progress, Long maximum) override;
    void StatusTextChange(const Text& text) override;
    void TitleChange(const Text& text) override;
    void DownloadBegin() override;
    void DownloadComplete() override;

private:
    BrowserPane& Pane() const { return *platform_.pane; }

    Guard& guard_;
    Events& events_;
    Platform& platform_;
    Children& children_;
    LoadClock& clock_;
    PaneNavigator& navigator_;
    HelpLoader& help_;
    Long lastProgress_ = -2;
    Long lastProgressMax_ = -1;
    Text lastStatusText_;
    Text lastTitleText_;
};

} // namespace ostrel

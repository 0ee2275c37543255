#pragma once

#include "control/OstrelWebHelp.h"

namespace ostrel {

/// Hears the browser pane and turns what it tells into the control's events. Frames inside the page are
/// dropped here.
class PaneListener final : public BrowserSink {
public:
    explicit PaneListener(OstrelWebHelp& web) : web_(web) {}

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
    OstrelWebHelp& web_;
};

} // namespace ostrel

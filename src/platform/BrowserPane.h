#pragma once

#include "text/Text.h"

namespace ostrel {

/// A way through the history, whose state a pane reports. Other numbers are states that nobody needs.
enum class HistoryCommand : Long { Forward = 1, Back = 2 };

/// How much of a page a refresh loads anew.
enum class RefreshLevel : Long { Plain = 0, IfExpired = 1, Completely = 3 };

/// What a pane can do with its page.
enum class PaneCommand : Long { Print = 6, Copy = 12, SelectAll = 17 };

enum class PaneCommandOption : Long { Default = 0, DontPromptUser = 2 };

/// How far a page has come.
enum class LoadState : Long { Uninitialised, Loading, Loaded, Interactive, Complete };

/// What a pane tells. The control is the one that listens. `topLevel` is false for frames inside the page.
class BrowserSink {
public:
    virtual ~BrowserSink() = default;
    virtual void BeforeNavigate2(Text& url, Text& targetFrame, Flag& cancel, bool topLevel) = 0;
    virtual void NavigateComplete2(const Text& url, bool topLevel) = 0;
    virtual void DocumentComplete(const Text& url, bool topLevel) = 0;
    /// `own`: the pane's own object asks.
    virtual void NewWindow2(bool own) = 0;
    virtual void CommandStateChange(HistoryCommand command, bool enable) = 0;
    virtual void ProgressChange(Long progress, Long maximum) = 0;
    virtual void StatusTextChange(const Text& text) = 0;
    virtual void TitleChange(const Text& text) = 0;
    virtual void DownloadBegin() = 0;
    virtual void DownloadComplete() = 0;
};

/// A browser engine's view. Events come through the sink from the loop, not from inside these calls, but for
/// `BeforeNavigate2` where the engine asks at once.
class BrowserPane {
public:
    virtual ~BrowserPane() = default;

    /// Null ends the events.
    virtual void Listen(BrowserSink* sink) = 0;

    virtual void Navigate(const Text& url) = 0;
    virtual void Navigate(const Text& url, const Text& target) = 0;
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    virtual void GoHome() = 0;
    virtual void GoSearch() = 0;
    virtual void Stop() = 0;
    virtual void Refresh2(RefreshLevel level) = 0;
    /// Commands that the engine does not know are left alone.
    virtual void ExecWB(PaneCommand command, PaneCommandOption option) = 0;

    virtual Text LocationName() const = 0;
    virtual Text LocationURL() const = 0;
    virtual bool Busy() const = 0;
    virtual LoadState ReadyState() const = 0;
    virtual bool Offline() const = 0;
    virtual void Offline(bool offline) = 0;
    /// "innerhtml", "innertext", "outerhtml" or "outertext" of the body; empty for any other word.
    virtual Text DocumentText(const Text& word) const = 0;
    virtual void Focus() = 0;
};

} // namespace ostrel

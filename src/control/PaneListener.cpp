#include "control/PaneListener.h"

#include <algorithm>

#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

/// Stop and Refresh are a pair: one can be pressed while something loads, the other while nothing does.
void ShowLoading(Children& children) {
    children.Default(ActionStop).enabled = true;
    children.Default(ActionRefresh).enabled = false;
}

} // namespace

void PaneListener::BeforeNavigate2(Text& url, Text& targetFrame, Flag& cancel, bool topLevel) {
    if (!topLevel) return;
    web_.Guarded([&] {
        Text urlCopy = url, targetCopy = targetFrame;
        Flag wanted = false;
        web_.events.BeforeNavigate2(urlCopy, targetCopy, wanted);
        if (wanted) cancel = true;
        ShowLoading(web_.frame_->children);
        web_.frame_->pane.PendingRefresh = false;
    });
}

void PaneListener::NavigateComplete2(const Text& url, bool topLevel) {
    if (!topLevel) return;
    web_.Guarded([&] { web_.events.NavigateComplete2.Tell(url); });
}

void PaneListener::DocumentComplete(const Text& url, bool topLevel) {
    if (!topLevel) return;
    web_.Guarded([&] { web_.DocumentCompleted(url); });
}

void PaneListener::NewWindow2(bool own) {
    if (!own) return;
    web_.Guarded([&] { web_.events.NewWindow2(); });
}

void PaneListener::CommandStateChange(HistoryCommand command, bool enable) {
    web_.Guarded([&] {
        if (command == HistoryCommand::Forward) {
            web_.events.ForwardState.Tell(enable);
            web_.frame_->children.Default(ActionForward).enabled = enable;
        } else if (command == HistoryCommand::Back) {
            web_.events.BackState.Tell(enable);
            web_.frame_->children.Default(ActionBack).enabled = enable;
        }
    });
}

void PaneListener::ProgressChange(Long progress, Long maximum) {
    web_.Guarded([&] {
        PaneWatch& watch = web_.frame_->pane;
        if (progress == watch.LastProgress && maximum == watch.LastProgressMax) return;
        watch.LastProgress = progress;
        watch.LastProgressMax = maximum;
        if (progress < 1 || maximum < 1) return;
        const double percent = std::min(100.0, static_cast<double>(progress) * 100 / maximum);
        web_.events.ProgressChange.Tell(static_cast<Single>(percent));
    });
}

void PaneListener::StatusTextChange(const Text& text) {
    web_.Guarded([&] { web_.StatusTextChanged(text); });
}

void PaneListener::TitleChange(const Text& text) {
    web_.Guarded([&] {
        PaneWatch& watch = web_.frame_->pane;
        if (text == watch.LastTitleText) return;
        watch.LastTitleText = text;
        web_.events.TitleChange.Tell(text);
    });
}

void PaneListener::DownloadBegin() {
    web_.Guarded([&] { web_.events.DownloadBegin(); });
}

void PaneListener::DownloadComplete() {
    web_.Guarded([&] { web_.events.DownloadComplete(); });
}

void OstrelWebHelp::DocumentCompleted(const Text& url) {
    PaneWatch& watch = frame_->pane;
    watch.PrintPending = false;
    if (frame_->help.HelpNavigation) {
        events.HelpPageComplete.Tell(url, LocationName());
        frame_->help.HelpPageCurrent = url;
    } else {
        events.DocumentComplete.Tell(url, LocationName());
    }
    frame_->children.txtURL.text = LocationURL();
    if (frame_->tmrClock) frame_->tmrClock->Stop();
    frame_->children.Default(ActionStop).enabled = Busy();
    frame_->children.Default(ActionRefresh).enabled = true;
    watch.PendingRefresh = false;
}

void OstrelWebHelp::StatusTextChanged(const Text& text) {
    PaneWatch& watch = frame_->pane;
    if (text == watch.LastStatusText) return;
    watch.LastStatusText = text;
    if (watch.PendingRefresh && EqualText(text, "done")) {
        frame_->children.Default(ActionStop).enabled = false;
        frame_->children.Default(ActionRefresh).enabled = true;
        watch.PendingRefresh = false;
        events.RefreshComplete.Tell(LocationURL(), LocationName());
    }
    events.StatusTextChange.Tell(text);
}

} // namespace ostrel

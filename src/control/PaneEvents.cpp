#include "control/PaneEvents.h"

#include <algorithm>

#include "text/CodePage.h"

namespace ostrel {

PaneEvents::PaneEvents(Guard& guard, Events& events, Platform& platform, Children& children, LoadClock& clock,
                       PaneNavigator& navigator, HelpLoader& help)
    : guard_(guard), events_(events), platform_(platform), children_(children), clock_(clock),
      navigator_(navigator), help_(help) {
    Pane().Listen(this);
}

PaneEvents::~PaneEvents() { Pane().Listen(nullptr); }

void PaneEvents::BeforeNavigate2(Text& url, Text& targetFrame, Flag& cancel, bool topLevel) {
    if (!topLevel) return;
    guard_([&] {
        Text urlCopy = url, targetCopy = targetFrame;
        Flag wanted = false;
        events_.BeforeNavigate2(urlCopy, targetCopy, wanted);
        if (wanted) cancel = true;
        navigator_.Began();
    });
}

void PaneEvents::NavigateComplete2(const Text& url, bool topLevel) {
    if (!topLevel) return;
    guard_([&] { events_.NavigateComplete2.Tell(url); });
}

void PaneEvents::DocumentComplete(const Text& url, bool topLevel) {
    if (!topLevel) return;
    guard_([&] {
        if (navigator_.LoadsHelp()) {
            events_.HelpPageComplete.Tell(url, Pane().LocationName());
            help_.Completed(url);
        } else {
            events_.DocumentComplete.Tell(url, Pane().LocationName());
        }
        children_.txtURL.text = Pane().LocationURL();
        clock_.EndEvents();
        navigator_.Completed();
    });
}

void PaneEvents::NewWindow2(bool own) {
    if (!own) return;
    guard_([&] { events_.NewWindow2(); });
}

void PaneEvents::CommandStateChange(HistoryCommand command, bool enable) {
    guard_([&] {
        if (command == HistoryCommand::Forward) {
            events_.ForwardState.Tell(enable);
            children_.Default(ActionForward).enabled = enable;
        } else if (command == HistoryCommand::Back) {
            events_.BackState.Tell(enable);
            children_.Default(ActionBack).enabled = enable;
        }
    });
}

void PaneEvents::ProgressChange(Long progress, Long maximum) {
    guard_([&] {
        if (progress == lastProgress_ && maximum == lastProgressMax_) return;
        lastProgress_ = progress;
        lastProgressMax_ = maximum;
        if (progress < 1 || maximum < 1) return;
        const double percent = std::min(100.0, static_cast<double>(progress) * 100 / maximum);
        events_.ProgressChange.Tell(static_cast<Single>(percent));
    });
}

void PaneEvents::StatusTextChange(const Text& text) {
    guard_([&] {
        if (text == lastStatusText_) return;
        lastStatusText_ = text;
        if (EqualText(text, "done") && navigator_.EndRefresh())
            events_.RefreshComplete.Tell(Pane().LocationURL(), Pane().LocationName());
        events_.StatusTextChange.Tell(text);
    });
}

void PaneEvents::TitleChange(const Text& text) {
    guard_([&] {
        if (text == lastTitleText_) return;
        lastTitleText_ = text;
        events_.TitleChange.Tell(text);
    });
}

void PaneEvents::DownloadBegin() {
    guard_([&] { events_.DownloadBegin(); });
}

void PaneEvents::DownloadComplete() {
    guard_([&] { events_.DownloadComplete(); });
}

} // namespace ostrel

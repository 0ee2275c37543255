#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "control/PaneListener.h"
#include "control/PropertyTable.h"
#include "control/ToolbarLayout.h"
#include "html/PageDraft.h"
#include "services/FileServices.h"

namespace ostrel {

OstrelWebHelp::OstrelWebHelp(Platform& platform, EventList::AnyListener listener)
    : context_{events, platform, run_}, frame_(std::make_unique<ControlFrame>()) {
    if (listener) events.ListenToAll(std::move(listener));
    Guarded([&] {
        if (platform.clock) {
            frame_->tmrHelp = platform.clock->MakeTimer([this] { HelpTick(); });
            frame_->tmrClock = platform.clock->MakeTimer([this] { ClockTick(); });
        }
        ExtractReset();
        frame_->listener = std::make_unique<PaneListener>(*this);
        if (Pane()) Pane()->Listen(frame_->listener.get());
        NavigatePane("about:blank");
        Trace("Web Help - Initialise");
    });
}

OstrelWebHelp::~OstrelWebHelp() {
    Terminate();
    if (Pane()) Pane()->Listen(nullptr);
}

void OstrelWebHelp::Trace(TextView line) { events.StatusTextChange.Tell(Text(line)); }

void OstrelWebHelp::InitProperties() {
    Guarded([&] {
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Indexed()) StoreStraight(row, DefaultOf(row));
            for (Long index = 1; index <= row.limit; ++index) row.store(state_, index, row.fallback);
        }
        if (frame_->tmrClock) frame_->tmrClock->Stop();
        html::HelpPageInitialise(state_.help);
        PageReset();
        Children& children = frame_->children;
        children.lblURL.visible = children.cmdURL.visible = children.txtURL.visible = false;
        children.txtURL.text.clear();
        Trace("Web Help - Init Properties");
    });
}

void OstrelWebHelp::Resize() {
    Guarded([&] {
        LayOutControl(*frame_, {.properties = state_.toolbar,
                                .indexPage = state_.control.IndexPage,
                                .searchLocation = state_.search.SearchLocation,
                                .screen = context_.platform.screen.get()});
        Trace("Web Help - Resize");
    });
}

void OstrelWebHelp::ResizeTo(Long Width, Long Height) {
    Guarded([&] {
        frame_->children.control.width = Width;
        frame_->children.control.height = Height;
        Resize();
    });
}

void OstrelWebHelp::Terminate() {
    if (terminated_) return;
    terminated_ = true;
    Guarded([&] {
        if (context_.platform.files) services::WorkFilesKill(*context_.platform.files, state_.service);
        Trace("Web Help - Terminate");
    });
}

const Children& OstrelWebHelp::View() const { return frame_->children; }

} // namespace ostrel

#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "control/PropertyTable.h"
#include "html/PageDraft.h"
#include "services/FileServices.h"

namespace ostrel {

OstrelWebHelp::OstrelWebHelp(Platform& platform, EventList::AnyListener listener) {
    if (listener) events.ListenToAll(std::move(listener));
    parts_ = std::make_unique<ControlParts>(*this, events, platform);
    parts_->guard([&] {
        ExtractReset();
        parts_->navigator.Navigate("about:blank");
        events.StatusTextChange.Tell("Web Help - Initialise");
    });
}

OstrelWebHelp::~OstrelWebHelp() { Terminate(); }

void OstrelWebHelp::InitProperties() {
    parts_->guard([&] {
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Indexed()) row.store(*parts_, 0, DefaultOf(row, parts_->Disk()));
            for (Long index = 1; index <= row.limit; ++index) row.store(*parts_, index, row.fallback);
        }
        parts_->clock.EndEvents();
        html::HelpPageInitialise(parts_->state.draft);
        PageReset();
        IndexClear();
        Children& children = parts_->children;
        children.lblURL.visible = children.cmdURL.visible = children.txtURL.visible = false;
        children.txtURL.text.clear();
        events.StatusTextChange.Tell("Web Help - Init Properties");
    });
}

void OstrelWebHelp::Resize() { parts_->layout.Resize(); }

void OstrelWebHelp::ResizeTo(Long Width, Long Height) {
    parts_->guard([&] {
        parts_->children.control.width = Width;
        parts_->children.control.height = Height;
        parts_->layout.Resize();
    });
}

void OstrelWebHelp::Terminate() {
    if (std::exchange(parts_->terminated, true)) return;
    parts_->guard([&] {
        services::WorkFilesKill(parts_->Disk(), parts_->state.service);
        events.StatusTextChange.Tell("Web Help - Terminate");
    });
}

} // namespace ostrel

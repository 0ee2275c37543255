#include "desk/Work.h"

#include <QPushButton>
#include <algorithm>

#include "desktop/QtText.h"

namespace ostrel::desk {

namespace {

/// What ends sooner would only make the page jump.
constexpr qint64 PanelDelay = 250;

} // namespace

Work::Work(desktop::OstrelWebHelpWidget& widget) : widget_(widget) {
    if (auto* stop = qobject_cast<QPushButton*>(widget.ChildWidget("cmdStop")))
        connect(stop, &QPushButton::clicked, this, &Work::Stop);
    // The toolbar's Stop ends what loads; to the user it is the same word.
    widget.Web().events.ToolbarClick.Listen([this](Text& button, Flag& kill) {
        if (!running_ || button != "Stop") return;
        kill = true;
        Stop();
    });
}

void Work::Begin(const QString& heading) {
    heading_ = desktop::FromQt(heading);
    running_ = true;
    stopWanted_ = panelShown_ = false;
    clock_.start();
    emit Changed();
}

void Work::End() {
    running_ = false;
    if (panelShown_) widget_.Web().StopHide();
    // The button of the panel has set the one, `Stop` the other.
    widget_.Web().StopPressed(false);
    widget_.Web().HostStop(false);
    widget_.Sync();
    emit Changed();
}

bool Work::GiveWay() {
    ShowPanelWhereDue();
    Clock& clock = *widget_.World().clock;
    if (clock.Pending()) clock.Yield();
    return stopWanted_;
}

void Work::Show(double fraction) {
    ShowPanelWhereDue();
    if (panelShown_) widget_.Web().StopGaugeShow(static_cast<Single>(std::clamp(fraction, 0.0, 1.0)));
}

void Work::Stop() {
    if (!running_) return;
    stopWanted_ = true;
    widget_.Web().HostStop(true);
}

void Work::ShowPanelWhereDue() {
    if (panelShown_ || clock_.elapsed() < PanelDelay) return;
    panelShown_ = true;
    widget_.Web().StopShow(heading_);
    widget_.Web().StopGaugeReset();
}

} // namespace ostrel::desk

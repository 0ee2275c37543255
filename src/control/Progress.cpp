#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long PanelTop = 600;
constexpr Long PanelGap = 120;
constexpr Long DefaultPointer = 0;
constexpr Long Hourglass = 11;
constexpr Long ClockInterval = 100;

/// Seconds since the start, in tenths; empty in the very millisecond of the start, and once the tick count
/// has wrapped around.
Text SecondsSoFar(LoadClock& clock, std::uint32_t ticks) {
    if (ticks <= clock.ClockStartTicks) return {};
    clock.ClockTenths = ToLong(static_cast<double>(ticks - clock.ClockStartTicks) / 100).value_or(0);
    return FormatNumber(static_cast<double>(clock.ClockTenths) / 10, "####0.0");
}

} // namespace

void OstrelWebHelp::SetPointer(Long shape) {
    frame_->children.control.pointer = shape;
    if (context_.platform.screen) context_.platform.screen->MousePointer(static_cast<PointerShape>(shape));
}

void OstrelWebHelp::StopShow(const Text& Heading) {
    Guarded([&] {
        Children& children = frame_->children;
        Child& panel = children.fraStop;
        panel.visible = true;
        panel.caption = Heading;
        panel.left = ToLong((static_cast<double>(children.control.width) - panel.width) / 2).value_or(0);
        panel.top = PanelTop;
        children.picGauge.visible = false;
        SetPointer(Hourglass);
        frame_->StopPanelGap = panel.top + panel.height + PanelGap - children.picToolbar.height;
        Resize();
        run_.StopRequested = run_.StopPressed = false;
    });
}

void OstrelWebHelp::HostStop(Flag Value) { run_.HostStop = Value; }

void OstrelWebHelp::StopHide() {
    Guarded([&] {
        frame_->children.fraStop.visible = false;
        SetPointer(DefaultPointer);
        frame_->children.brwBrowser.visible = true;
        frame_->StopPanelGap = 0;
        Resize();
    });
}

void OstrelWebHelp::StopGaugeReset() {
    Guarded([&] {
        Child& bar = frame_->children.picGauge2;
        frame_->children.picGauge.visible = true;
        bar.left = bar.top = 0;
        bar.height = frame_->children.picGauge.height;
        bar.visible = false;
    });
}

void OstrelWebHelp::StopGaugeShow(Single ShowFraction) {
    Guarded([&] {
        Child& bar = frame_->children.picGauge2;
        bar.visible = true;
        if (const auto width = ToLong(static_cast<double>(frame_->children.picGauge.width) * ShowFraction))
            bar.width = *width;
    });
}

void OstrelWebHelp::ClockStart() {
    Guarded([&] {
        frame_->clock.ClockRunning = true;
        if (frame_->tmrClock && !frame_->tmrClock->Running()) frame_->tmrClock->Start(ClockInterval, false);
        if (context_.platform.clock) frame_->clock.ClockStartTicks = context_.platform.clock->Ticks();
        frame_->clock.ClockTenths = 0;
    });
}

Text OstrelWebHelp::ClockTime() {
    return Guarded([&]() -> Text {
        if (!frame_->clock.ClockRunning || !context_.platform.clock) return {};
        return SecondsSoFar(frame_->clock, context_.platform.clock->Ticks());
    });
}

Text OstrelWebHelp::ClockStop() {
    return Guarded([&]() -> Text {
        Text seconds = ClockTime();
        if (frame_->tmrClock) frame_->tmrClock->Stop();
        frame_->clock.ClockRunning = false;
        return seconds;
    });
}

void OstrelWebHelp::ClockTick() {
    Guarded([&] {
        // It runs once and is started again at the end, so however long a listener takes, ticks never pile
        // up.
        if (!frame_->clock.ClockRunning) return;
        const Text seconds = SecondsSoFar(frame_->clock, context_.platform.clock->Ticks());
        if (!seconds.empty()) events.DownloadTime.Tell(seconds);
        frame_->tmrClock->Start(ClockInterval, false);
    });
}

} // namespace ostrel

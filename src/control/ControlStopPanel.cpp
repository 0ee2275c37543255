#include "control/ControlStopPanel.h"

#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long PanelTop = 600;
constexpr Long RoomBelow = 120;

} // namespace

void ControlStopPanel::Show(const Text& heading) {
    Child& panel = children_.fraStop;
    panel.visible = true;
    panel.caption = heading;
    panel.left = ToLong((static_cast<double>(children_.control.width) - panel.width) / 2).value_or(0);
    panel.top = PanelTop;
    children_.picGauge.visible = false;
    SetPointer(PointerShape::Hourglass);
    layout_.KeepRoom(panel.top + panel.height + RoomBelow - children_.picToolbar.height);
    layout_.Resize();
    run_.StopRequested = run_.StopPressed = false;
}

void ControlStopPanel::Hide() {
    children_.fraStop.visible = false;
    SetPointer(PointerShape::Default);
    children_.brwBrowser.visible = true;
    layout_.KeepRoom(0);
    layout_.Resize();
}

void ControlStopPanel::ResetGauge() {
    Child& bar = children_.picGauge2;
    children_.picGauge.visible = true;
    bar.left = bar.top = 0;
    bar.height = children_.picGauge.height;
    bar.visible = false;
}

void ControlStopPanel::ShowGauge(Single fraction) {
    Child& bar = children_.picGauge2;
    bar.visible = true;
    if (const auto width = ToLong(static_cast<double>(children_.picGauge.width) * fraction))
        bar.width = *width;
}

void ControlStopPanel::SetPointer(PointerShape shape) {
    children_.control.pointer = static_cast<Long>(shape);
    platform_.screen->MousePointer(shape);
}

} // namespace ostrel

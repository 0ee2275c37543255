#pragma once

#include "control/ControlLayout.h"

namespace ostrel {

/// The stop panel over the top of the control: a heading, a gauge and a Stop button. While it is shown the
/// browser pane lies below it and the pointer is an hourglass.
class ControlStopPanel final : public StopPanel {
public:
    ControlStopPanel(Platform& platform, RunFlags& run, Children& children, ControlLayout& layout)
        : platform_(platform), run_(run), children_(children), layout_(layout) {}

    void Show(const Text& heading) override;
    void ShowItem(const Text& name) override { children_.fraStop.caption = name; }
    void Hide() override;
    void ResetGauge() override;
    void ShowGauge(Single fraction) override;
    /// The user presses the Stop button.
    void Press() { run_.StopRequested = run_.StopPressed = true; }

private:
    void SetPointer(PointerShape shape);

    Platform& platform_;
    RunFlags& run_;
    Children& children_;
    ControlLayout& layout_;
};

} // namespace ostrel

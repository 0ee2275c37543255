#pragma once

#include "control/Children.h"
#include "control/Guard.h"
#include "platform/Context.h"

namespace ostrel {

struct State;
class ToolbarButtons;

/// Top, height and width of the toolbar's buttons in twips; 0 while the toolbar is hidden.
struct ButtonSizes {
    Long top = 0, height = 0, width = 0;
};

/// Fits the browser pane into the control, and places the toolbar, its buttons and the address line.
class ControlLayout {
public:
    ControlLayout(Guard& guard, Events& events, Platform& platform, const State& state, Children& children,
                  const ToolbarButtons& buttons)
        : guard_(guard), events_(events), platform_(platform), state_(state), children_(children),
          buttons_(buttons) {}

    /// Lays everything out for the size of the control.
    void Resize();
    /// Keeps room above the browser pane, in twips below the toolbar, from the next layout on.
    void KeepRoom(Long height) { keptRoom_ = height; }
    /// The sizes that the last layout gave the toolbar's buttons.
    const ButtonSizes& Sizes() const { return sizes_; }

private:
    Guard& guard_;
    Events& events_;
    Platform& platform_;
    const State& state_;
    Children& children_;
    const ToolbarButtons& buttons_;
    Long keptRoom_ = 0;
    ButtonSizes sizes_;
};

} // namespace ostrel

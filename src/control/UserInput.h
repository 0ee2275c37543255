#pragma once

#include "control/ControlStopPanel.h"
#include "control/PaneNavigator.h"
#include "control/ToolbarActions.h"
#include "control/ToolbarButtons.h"

namespace ostrel {

enum class MouseAction;

/// What the user does to the visual children of the control.
class UserInput {
public:
    UserInput(Events& events, Platform& platform, const State& state, Children& children,
              ToolbarButtons& buttons, ToolbarActions& actions, PaneNavigator& navigator,
              ControlStopPanel& stopPanel)
        : events_(events), platform_(platform), state_(state), children_(children), buttons_(buttons),
          actions_(actions), navigator_(navigator), stopPanel_(stopPanel) {}

    /// A press of a button by its child's name, its token or its user button's name, or Enter in the address
    /// line. False, with nothing done, where it is hidden, disabled or unknown.
    bool Press(const Text& name);
    /// False where the child of that name takes no text.
    bool Type(const Text& name, const Text& value);
    /// The place lies in the child of that name. False where no event is raised.
    bool Mouse(MouseAction action, const Text& name, Integer button, Integer shift, Single x, Single y);

private:
    void GoToAddress();

    Events& events_;
    Platform& platform_;
    const State& state_;
    Children& children_;
    ToolbarButtons& buttons_;
    ToolbarActions& actions_;
    PaneNavigator& navigator_;
    ControlStopPanel& stopPanel_;
};

} // namespace ostrel

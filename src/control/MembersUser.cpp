#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"

namespace ostrel {

const Children& OstrelWebHelp::View() const { return parts_->children; }

Flag OstrelWebHelp::PressChild(const Text& Name) {
    return parts_->guard([&]() -> Flag { return parts_->input.Press(Name); });
}

Flag OstrelWebHelp::TypeIntoChild(const Text& Name, const Text& Value) {
    return parts_->guard([&]() -> Flag { return parts_->input.Type(Name, Value); });
}

Flag OstrelWebHelp::MouseOverChild(MouseAction Action, const Text& Name, Integer Button, Integer Shift,
                                   Single X, Single Y) {
    return parts_->guard([&]() -> Flag { return parts_->input.Mouse(Action, Name, Button, Shift, X, Y); });
}

} // namespace ostrel

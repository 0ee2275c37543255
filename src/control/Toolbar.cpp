#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "control/ToolbarLayout.h"
#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

constexpr std::size_t MostUserButtons = 100;

/// The tokens that a user button may be named like are missing here: "stop", "refresh" and "space" win over
/// it at layout.
bool IsTakenName(TextView lowered) {
    for (const TextView taken : {"back", "close", "forward", "full", "home", "index", "open", "print",
                                 "search", "edit", "properties"})
        if (lowered == taken) return true;
    return false;
}

} // namespace

Flag OstrelWebHelp::ButtonRegister(const Text& name, const Text& tip, Text& error) {
    if (frame_->buttons.size() >= MostUserButtons) {
        error = "100 Buttons have already been added.";
        return false;
    }
    const Text wanted(TrimBlanks(name));
    if (wanted.empty()) {
        error = "Name has not been specified.";
        return false;
    }
    if (IsTakenName(Lower(wanted))) {
        error = "New Button Name [" + wanted + "] conflicts with default Button.";
        return false;
    }
    for (const UserButton& button : frame_->buttons) {
        if (!EqualText(button.name, wanted)) continue;
        error = "New Button Name [" + wanted + "] conflicts with existing Button.";
        return false;
    }
    frame_->buttons.push_back({wanted, {}, Text(TrimBlanks(tip))});
    frame_->children.AddUserButton().tip = frame_->buttons.back().tip;
    return true;
}

Flag OstrelWebHelp::ButtonAdd(const Text& Name, const Text& BitMap, const Text& ToolTip, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        const Text bitmap(TrimBlanks(BitMap));
        if (bitmap.empty()) {
            ErrorMessage = "BitMap has not been specified.";
            return false;
        }
        if (!ButtonRegister(Name, ToolTip, ErrorMessage)) return false;
        frame_->buttons.back().bitmap = bitmap;
        const Text path = services::BuildPath(state_.service.DirectoryRun, bitmap);
        if (FileExists(path)) frame_->children.UserButton(frame_->children.UserButtons())->picture = {path};
        Resize();
        return true;
    });
}

Flag OstrelWebHelp::ButtonAddPicture(const Text& Name, const Picture& BitMap, const Text& ToolTip,
                                     Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        if (!ButtonRegister(Name, ToolTip, ErrorMessage)) return false;
        frame_->children.UserButton(frame_->children.UserButtons())->picture = BitMap;
        Resize();
        return true;
    });
}

void OstrelWebHelp::ButtonClear() {
    Guarded([&] {
        if (frame_->buttons.empty()) return;
        frame_->children.ClearUserButtons();
        frame_->buttons.clear();
        Resize();
    });
}

Flag OstrelWebHelp::ToolbarButtonEnabled(const Text& Button) {
    const Child* button = FindToolbarButton(*frame_, Button);
    return button && button->enabled;
}

void OstrelWebHelp::ToolbarButtonEnabledSet(const Text& Button, Flag State) {
    if (Child* button = FindToolbarButton(*frame_, Button)) button->enabled = State;
}

Flag OstrelWebHelp::ToolbarButtonVisible(const Text& Button) {
    const Child* button = FindToolbarButton(*frame_, Button);
    return button && button->visible;
}

Long OstrelWebHelp::ToolbarButtonLeft(const Text& Button) {
    const Child* button = FindToolbarButton(*frame_, Button);
    return button && button->visible ? button->left : -1;
}

Long OstrelWebHelp::ToolbarButtonMousePointer(const Text& Button) {
    const Child* button = FindToolbarButton(*frame_, Button);
    return button ? button->pointer : 0;
}

void OstrelWebHelp::ToolbarButtonMousePointerSet(const Text& Button, Long Value) {
    // The platform knows the shapes 0 to 15 and 99; any other is refused.
    const bool known = (Value >= 0 && Value <= 15) || Value == 99;
    if (Child* button = FindToolbarButton(*frame_, Button); button && known) button->pointer = Value;
}

void OstrelWebHelp::ToolbarButtonSizePosition(Long& Top, Long& Height, Long& Width) {
    Top = frame_->toolbar.ButtonTop;
    Height = frame_->toolbar.ButtonHeightUsed;
    Width = frame_->toolbar.ButtonWidthUsed;
}

} // namespace ostrel

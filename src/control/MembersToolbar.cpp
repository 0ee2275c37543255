#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel {

Flag OstrelWebHelp::ButtonAdd(const Text& Name, const Text& BitMap, const Text& ToolTip, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        const Text bitMap(TrimBlanks(BitMap));
        if (bitMap.empty()) {
            ErrorMessage = "BitMap has not been specified.";
            return false;
        }
        Child* button = parts_->buttons.Add(Name, ToolTip, ErrorMessage);
        if (!button) return false;
        const Text path = services::BuildPath(parts_->state.service.DirectoryRun, bitMap);
        if (services::FileExists(parts_->Disk(), path)) button->picture = {path};
        parts_->layout.Resize();
        return true;
    });
}

Flag OstrelWebHelp::ButtonAddPicture(const Text& Name, const Picture& BitMap, const Text& ToolTip,
                                     Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        Child* button = parts_->buttons.Add(Name, ToolTip, ErrorMessage);
        if (!button) return false;
        button->picture = BitMap;
        parts_->layout.Resize();
        return true;
    });
}

void OstrelWebHelp::ButtonClear() {
    parts_->guard([&] {
        if (parts_->buttons.Clear()) parts_->layout.Resize();
    });
}

void OstrelWebHelp::ButtonClick(const Text& Button) {
    parts_->guard([&] {
        const ToolbarAction action = ActionOfToken(Lower(TrimBlanks(Button)));
        if (action != ActionCount) parts_->actions.Run(action);
    });
}

Flag OstrelWebHelp::ToolbarButtonEnabled(const Text& Button) {
    return parts_->guard([&]() -> Flag {
        const Child* button = parts_->buttons.Find(Button);
        return button && button->enabled;
    });
}

void OstrelWebHelp::ToolbarButtonEnabledSet(const Text& Button, Flag State) {
    parts_->guard([&] {
        if (Child* button = parts_->buttons.Find(Button)) button->enabled = State;
    });
}

Long OstrelWebHelp::ToolbarButtonLeft(const Text& Button) {
    return parts_->guard([&] {
        const Child* button = parts_->buttons.Find(Button);
        return button && button->visible ? button->left : -1;
    });
}

Long OstrelWebHelp::ToolbarButtonMousePointer(const Text& Button) {
    return parts_->guard([&] {
        const Child* button = parts_->buttons.Find(Button);
        return button ? button->pointer : 0;
    });
}

void OstrelWebHelp::ToolbarButtonMousePointerSet(const Text& Button, Long Value) {
    parts_->guard([&] {
        // The platform knows the shapes 0 to 15 and 99; any other is refused.
        const bool known = (Value >= 0 && Value <= 15) || Value == 99;
        if (Child* button = parts_->buttons.Find(Button); button && known) button->pointer = Value;
    });
}

void OstrelWebHelp::ToolbarButtonSizePosition(Long& Top, Long& Height, Long& Width) {
    parts_->guard([&] {
        const ButtonSizes& sizes = parts_->layout.Sizes();
        Top = sizes.top;
        Height = sizes.height;
        Width = sizes.width;
    });
}

Flag OstrelWebHelp::ToolbarButtonVisible(const Text& Button) {
    return parts_->guard([&]() -> Flag {
        const Child* button = parts_->buttons.Find(Button);
        return button && button->visible;
    });
}

} // namespace ostrel

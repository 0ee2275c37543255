#pragma once

#include "control/ControlFrame.h"
#include "control/ToolbarProperties.h"
#include "platform/Screen.h"

namespace ostrel {

/// What the arrangement of the toolbar depends on beside the children.
struct ToolbarScope {
    const ToolbarProperties& properties;
    const Text& indexPage;
    Long searchLocation;
    /// Null for a pixel of 15 twips and labels of no size.
    const Screen* screen;
};

/// Fits the browser pane and places every button and the address line.
void LayOutControl(ControlFrame& frame, const ToolbarScope& scope);

/// The child of a token or of a user button's name, in any case and blanks around; null for none.
Child* FindToolbarButton(ControlFrame& frame, TextView name);

/// The default button of a token as it stands in the table; ActionCount for none.
ToolbarAction ActionOfToken(TextView token);

} // namespace ostrel

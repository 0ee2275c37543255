#pragma once

#include "control/Children.h"
#include "control/OstrelProperties.h"
#include "control/PaneNavigator.h"
#include "ui/CommonDialogs.h"

namespace ostrel {

struct State;

/// The dialogs that the control opens of its own: those of the toolbar, and the pickers that hosts ask for.
class FrameDialogs {
public:
    FrameDialogs(Context& context, State& state, Children& children, PaneNavigator& navigator);

    /// Asks for an address and loads it.
    void OpenLocation();
    /// Shows the properties of the page on view.
    void ShowPageProperties();

    // The pickers, each between `DialogOpen` and `DialogClose`.

    Text PickFile(const At& place, FilePick& pick);
    Long PickColour(const At& place);
    Text PickDirectory(const At& place, const Text& title, const Text& start, Long flags);
    /// Whether the picker of directories is open.
    bool PicksDirectory() const { return picksDirectory_; }

    /// The list that shows the properties.
    OstrelProperties& Properties() { return properties_; }

private:
    /// The place of a dialog under a button of the toolbar, from the corner of the control.
    FromComponent Under(ToolbarAction action) const;
    void ListPageProperties();

    Context& context_;
    State& state_;
    Children& children_;
    PaneNavigator& navigator_;
    OstrelProperties properties_;
    bool picksDirectory_ = false;
};

} // namespace ostrel

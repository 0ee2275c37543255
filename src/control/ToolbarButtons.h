#pragma once

#include <vector>

#include "control/Children.h"

namespace ostrel {

/// The buttons of the toolbar by name: the default ones, and those that the host adds, whose names are kept
/// here.
class ToolbarButtons {
public:
    explicit ToolbarButtons(Children& children) : children_(children) {}

    /// Adds a user button of a new name without a picture and returns its child. Null, with a sentence in
    /// `error`, where the name is empty or taken, or there are 100 buttons.
    Child* Add(const Text& name, const Text& tip, Text& error);
    /// Removes all user buttons. Returns whether there were any.
    bool Clear();

    /// Returns the button of a token or of a user button's name, in any case and with blanks around, or null.
    Child* Find(TextView name) const;
    /// Returns the name of a user button, or null where the child is none.
    const Text* NameOf(const Child& button) const;
    /// The names of the user buttons, in the order in which they were added.
    const std::vector<Text>& Names() const { return names_; }

private:
    Children& children_;
    std::vector<Text> names_; ///< of `cmdButton(1)` and so on
};

} // namespace ostrel

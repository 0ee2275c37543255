#pragma once

#include <array>

#include "text/Text.h"

namespace ostrel {

/// What the default buttons of the toolbar do; each numbers its button.
enum ToolbarAction : int {
#define ACTION(id, token, child, word, tip, flags, run) Action##id,
#include "control/ToolbarActions.def"
#undef ACTION
    ActionCount
};

/// What a row of the table of actions says beside texts; they may be added together.
enum ToolbarActionFlags : unsigned {
    NameFree = 0,    ///< a user button may have the token as its name, though the default button wins
    NameTaken = 1,   ///< no user button may have the token as its name
    OpensWindow = 2, ///< the action opens a window, which keeps the focus
};

/// One of the default buttons of the toolbar.
struct DefaultButton {
    TextView token; ///< in `ToolbarFormat` and for the members, in lower case
    TextView name;  ///< of the child
    TextView word;  ///< in `ToolbarClick`
    TextView tip;
    unsigned flags;

    bool Has(ToolbarActionFlags flag) const { return (flags & flag) != 0; }
};

/// In the order of ToolbarAction.
inline constexpr std::array<DefaultButton, ActionCount> DefaultButtons{{
#define ACTION(id, token, child, word, tip, flags, run) {token, child, word, tip, flags},
#include "control/ToolbarActions.def"
#undef ACTION
}};

/// Returns the action of a token in lower case; ActionCount for any other text.
ToolbarAction ActionOfToken(TextView token);

} // namespace ostrel

#pragma once

#include "ui/Dialogs.h"

namespace ostrel {

/// What a file picker shows.
struct FilePick {
    bool save = false;
    Text filter; ///< see ui/DialogFilters.h; empty for all files
    Long filterIndex = 0;
    Text fileName;
    Text directory; ///< where it starts, the directory of `fileName` where it is empty; that of the picked
                    ///< file
    Text defaultExtension; ///< of a name that is typed without one
};

/// Lets the user pick a file. Returns its path, or an empty text where the user cancels.
Text PickFile(const Dialogs& dialogs, const DialogPlace& place, FilePick& pick);
/// Lets the user pick a colour; -1 where the user cancels.
Long PickColour(const Dialogs& dialogs, const DialogPlace& place);
/// Lets the user pick a directory, starting at one. Returns its path, or an empty text.
Text PickDirectory(const Dialogs& dialogs, const DialogPlace& place, const Text& title, const Text& start,
                   Long flags);

} // namespace ostrel

#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel {

/// One change of a text: at that place some characters were removed and others inserted.
struct Change {
    Long at = 0, removed = 0, inserted = 0;
    bool operator==(const Change&) const = default;
};

/// Adds a change to the sum of those before it. The sum is in order of place, and no two of its changes
/// touch. Its places are those of the changed text, so it can be made on an old text from its first change to
/// its last, with what the new text holds there.
void AddChange(std::vector<Change>& sum, const Change& change);

} // namespace ostrel

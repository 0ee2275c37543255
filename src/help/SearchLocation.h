#pragma once

namespace ostrel {

/// Where the search may look.
enum OWHSearchLocation {
    owhSearchNone = 0,
    owhSearchLocal = 1,
    owhSearchRemote = 2,
    owhSearchLocalRemote = 3
};

} // namespace ostrel

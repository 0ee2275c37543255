#pragma once

namespace ostrel {

/// What a property's row says of it beside kind and default.
enum PropertyFlags : unsigned {
    Unstored = 0, ///< stays out of the bag
    Stored = 1,   ///< kept in the bag
    Relayout = 2, ///< a let runs the Resize step
};

} // namespace ostrel

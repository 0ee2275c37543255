#pragma once

namespace ostrel {

/// What a property's row says of it beside kind and default; they may be added together.
enum PropertyFlags : unsigned {
    Unstored = 0,              ///< stays out of the bag
    Stored = 1,                ///< kept in the bag
    Relayout = 2,              ///< a let lays the control out
    NeverWritten = 4,          ///< read from the bag but never written to it, so it comes back as its default
    WrittenUnlessEmpty = 8,    ///< written to the bag wherever it is not empty, even as its default
    WrittenLater = 16,         ///< written to the bag behind the next row that is `WritesLater`
    WritesLater = 32,          ///< behind it the rows that are `WrittenLater` are written
    ApplicationDirectory = 64, ///< the default is the directory of the running application
};

} // namespace ostrel

#pragma once

#include <functional>
#include <stdexcept>

namespace ostrel::tables {

/// What is wrong with an input, as one sentence with the place.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The host wanted the reading to end.
struct Interruption {};

/// Returns whether the host wants the reading to end. Called repeatedly while an input is read; must not
/// throw. True ends the reading with an `Interruption`.
using StopWanted = std::function<bool()>;

} // namespace ostrel::tables

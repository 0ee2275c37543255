#pragma once

#include <stdexcept>

namespace ostrel::cli {

/// What is wrong with an input, as one sentence with the place. It ends the command with status 1.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The user pressed Ctrl-C while the input was read.
struct Interruption {};

} // namespace ostrel::cli

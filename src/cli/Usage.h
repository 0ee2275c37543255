#pragma once

#include <stdexcept>

namespace ostrel::cli {

/// A command line that cannot be understood, as one sentence. It ends the command with status 2.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace ostrel::cli

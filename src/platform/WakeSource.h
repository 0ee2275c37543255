#pragma once

namespace ostrel {

/// Something outside the component that may end a sleep of its clock: a descriptor of the system, such as a
/// socket, a pipe, or the one by which another loop says that it has work.
struct WakeSource {
    int descriptor = -1; ///< negative for none
    bool read = true;    ///< to be woken when it can be read
    bool write = false;  ///< to be woken when it can be written
    /// Set by the sleep: the next read or write does not block, or fails at once.
    bool ready = false;
};

} // namespace ostrel

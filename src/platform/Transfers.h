#pragma once

namespace ostrel {

/// The network, as far as the component uses it.
class Transfers {
public:
    virtual ~Transfers() = default;

    /// Whether any network interface is up, the loopback included. Sends nothing.
    virtual bool Connected() = 0;
};

} // namespace ostrel

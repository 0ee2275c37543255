#pragma once

#include "platform/Transfers.h"

namespace ostrel {

/// The network of the system.
class NativeTransfers final : public Transfers {
public:
    bool Connected() override;
};

} // namespace ostrel

#pragma once

#include <memory>
#include <optional>

#include "platform/Transfers.h"

namespace ostrel {

/// The system's network, but for what is scripted.
class HeadlessTransfers final : public Transfers {
public:
    explicit HeadlessTransfers(std::unique_ptr<Transfers> system) : system_(std::move(system)) {}

    /// Sets what `Connected` sees; nothing for the system's own state.
    void ScriptConnected(std::optional<bool> connected) { connected_ = connected; }

    bool Connected() override { return connected_ ? *connected_ : system_->Connected(); }

private:
    std::unique_ptr<Transfers> system_;
    std::optional<bool> connected_;
};

} // namespace ostrel

#include "platform/native/NativePlatform.h"

#include <ifaddrs.h>
#include <net/if.h>

namespace ostrel {

namespace {

/// The network of the system.
class NativeTransfers final : public Transfers {
public:
    bool Connected() override;
};

bool NativeTransfers::Connected() {
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0) return false;
    bool up = false;
    for (const ifaddrs* each = first; each && !up; each = each->ifa_next)
        up = (each->ifa_flags & IFF_UP) != 0;
    ::freeifaddrs(first);
    return up;
}

} // namespace

std::unique_ptr<Transfers> MakeNativeTransfers() { return std::make_unique<NativeTransfers>(); }

} // namespace ostrel

#include "platform/native/NativeTransfers.h"

#include <ifaddrs.h>
#include <net/if.h>

namespace ostrel {

bool NativeTransfers::Connected() {
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0) return false;
    bool up = false;
    for (const ifaddrs* each = first; each && !up; each = each->ifa_next) up = (each->ifa_flags & IFF_UP) != 0;
    ::freeifaddrs(first);
    return up;
}

} // namespace ostrel

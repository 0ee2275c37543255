#include "platform/native/WaitForSources.h"

#include <algorithm>
#include <limits>
#include <vector>

#include <poll.h>

namespace ostrel {

bool WaitForSources(std::span<WakeSource> sources, TimerQueue::Moment longest) {
    std::vector<pollfd> polled;
    polled.reserve(sources.size());
    for (const WakeSource& source : sources) {
        const int wish = (source.read ? POLLIN : 0) | (source.write ? POLLOUT : 0);
        polled.push_back({source.descriptor, static_cast<short>(wish), 0});
    }
    constexpr TimerQueue::Moment Longest = std::numeric_limits<int>::max();
    const auto timeout = static_cast<int>(std::clamp<TimerQueue::Moment>(longest, 0, Longest));
    const bool any = ::poll(polled.data(), polled.size(), timeout) > 0;
    // End of file, errors and closed descriptors count as ready: the next use reports them.
    for (std::size_t i = 0; i < sources.size(); ++i) sources[i].ready = any && polled[i].revents != 0;
    return any;
}

} // namespace ostrel

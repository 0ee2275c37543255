#pragma once

#include "platform/Events.h"
#include "platform/Platform.h"

namespace ostrel {

/// Flags that a user's Stop sets and long loops read after each yield.
struct RunFlags {
    Flag StopPressed;
    Flag StopRequested;
    bool Stopped() const { return StopPressed || StopRequested; }
};

/// What a service may reach besides its arguments. The control owns it; services borrow it.
struct Context {
    Events& events;
    Platform& platform;
    RunFlags& run;

    /// The yield: runs due timers and the host's pending work. Costs next to nothing when nothing waits.
    void GiveWay() const {
        if (platform.clock && platform.clock->Pending()) platform.clock->Yield();
    }
};

} // namespace ostrel

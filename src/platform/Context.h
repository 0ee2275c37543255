#pragma once

#include "platform/Events.h"
#include "platform/Platform.h"

namespace ostrel {

/// Flags that end long loops, which read them after each yield. What the user pressed is cleared whenever a
/// loop begins; what the host wants stays until the host clears it.
struct RunFlags {
    Flag StopPressed;
    Flag StopRequested;
    Flag HostStop;
    /// Whether reports and CSV files are to end.
    bool Pressed() const { return StopPressed || HostStop; }
    /// Whether sorts are to end.
    bool Stopped() const { return Pressed() || StopRequested; }
};

/// What a service may reach besides its arguments. The control owns it; services borrow it.
struct Context {
    Events& events;
    Platform& platform;
    RunFlags& run;

    /// The yield: runs due timers and the host's pending work. Costs next to nothing when nothing waits.
    void GiveWay() const {
        if (platform.clock->Pending()) platform.clock->Yield();
    }
};

} // namespace ostrel

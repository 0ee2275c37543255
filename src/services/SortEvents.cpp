#include "services/SortEvents.h"

namespace ostrel::services {

SortEvents::SortEvents(Context& context) : context_(context) {
    context_.events.SortProgress.Tell("Sort Started", 0);
    context_.run.StopPressed = false;
    context_.run.StopRequested = false;
}

bool SortEvents::Watched() {
    pending_ = context_.platform.clock->Pending();
    return pending_ || context_.events.SortProgress.Heard();
}

bool SortEvents::PassDone() {
    // Nothing runs that `Watched` did not see coming: a timer that falls due in between waits for the next
    // pass.
    if (pending_) context_.platform.clock->Yield();
    ++passes_;
    const bool stopped = context_.run.Stopped();
    context_.events.SortProgress.Tell(stopped ? "Sort Interrupted" : "...Sorting", passes_);
    return !stopped;
}

void SortEvents::Finished() { context_.events.SortProgress.Tell("Sort Finished", passes_); }

} // namespace ostrel::services

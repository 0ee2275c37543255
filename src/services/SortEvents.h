#pragma once

#include "platform/Context.h"

namespace ostrel::services {

/// What a sort tells while it runs: start, passes, stop and finish.
class SortEvents {
public:
    /// Tells the start, and clears the stop that a former loop may have left.
    explicit SortEvents(Context& context);

    /// Whether anybody could look at the pointers after the pass just done: a listener, or what the yield
    /// would run. Asked once a pass, before `PassDone`.
    bool Watched();
    /// Yields, counts the pass and tells it. False where a stop ends the sort.
    bool PassDone();
    void Finished();

private:
    Context& context_;
    Long passes_ = 0;
    bool pending_ = false;
};

} // namespace ostrel::services

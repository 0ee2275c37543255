#include "bridge/Bridge.h"
#include "bridge/Values.h"

namespace ostrel::bridge {

void Bridge::Renew(const Json& request, CallAnswer&) {
    // The control that raises an event is still at work in it.
    if (depth_ > 0) throw Refusal("A control can't be replaced inside one of its events.");
    const Json& how = request.at("new");
    if (how == "init") {
        EndControl();
        MakeControl();
        web_->InitProperties();
    } else if (how == "bare") {
        EndControl();
        MakeControl();
    } else {
        throw Refusal("new must be init, read or bare.");
    }
}

} // namespace ostrel::bridge

#include <cmath>

#include "bridge/Arguments.h"
#include "bridge/Bridge.h"

namespace ostrel::bridge {

VirtualClock& Bridge::Time() const {
    VirtualClock* clock = platform_.VirtualTime();
    if (!clock) throw Refusal("Time can be moved only on the virtual clock.");
    return *clock;
}

void Bridge::Advance(const Json& request, CallAnswer&) {
    Long milliseconds = 0;
    Read(request.at("advance"), Place{"advance"}, milliseconds);
    if (milliseconds < 0) throw Refusal("Time does not go back.");
    Time().Advance(milliseconds);
}

void Bridge::Ticks(const Json& request, CallAnswer&) {
    Double ticks = 0;
    Read(request.at("ticks"), Place{"ticks"}, ticks);
    constexpr Double highest = 4294967295.0;
    if (!(ticks >= 0 && ticks <= highest) || ticks != std::floor(ticks))
        throw Refusal("ticks must be a whole number from 0 to 4294967295.");
    Time().Ticks(static_cast<std::uint32_t>(ticks));
}

void Bridge::UseClipboard(const Json& request, CallAnswer& answer) {
    const Json& what = request.at("clipboard");
    if (what.is_null()) return answer.Give(platform_.clipboard->GetText());
    Text text;
    Read(what, Place{"clipboard"}, text);
    platform_.clipboard->SetText(text);
}

void Bridge::SizeScreen(const Json& request, CallAnswer&) {
    Arguments arguments(request.at("screen"), "screen");
    Bounds area;
    area.left = arguments.Take<Long>("left");
    area.top = arguments.Take<Long>("top");
    area.width = arguments.Take<Long>("width");
    area.height = arguments.Take<Long>("height");
    arguments.End();
    platform_.Display().Area(area);
}

void Bridge::Transfer(const Json& request, CallAnswer&) {
    const Json& what = request.at("transfer");
    if (what.is_null()) return platform_.Network().ScriptConnected(std::nullopt);
    if (what != "offline" && what != "online") throw Refusal("transfer must be online, offline or null.");
    platform_.Network().ScriptConnected(what == "online");
}

} // namespace ostrel::bridge

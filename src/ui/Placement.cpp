#include "ui/Placement.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ostrel {

namespace {

/// Lengths come from the host and may be anything; they are added in 64 bits and kept within 32.
Long KeepWithin(std::int64_t place, Long start) {
    return static_cast<Long>(std::clamp<std::int64_t>(place, start, std::numeric_limits<Long>::max()));
}

Long FitOneWay(Long place, Long size, Long start, Long room) {
    return KeepWithin(std::min<std::int64_t>(place, std::int64_t{start} + room - size), start);
}

Long CentreOneWay(Long size, Long start, Long room) {
    return KeepWithin(start + (std::int64_t{room} - size) / 2, start);
}

} // namespace

Bounds FitOnScreen(Bounds form, const Bounds& area) {
    form.left = FitOneWay(form.left, form.width, area.left, area.width);
    form.top = FitOneWay(form.top, form.height, area.top, area.height);
    return form;
}

Bounds CentreOnScreen(Bounds form, const Bounds& area) {
    form.left = CentreOneWay(form.width, area.left, area.width);
    form.top = CentreOneWay(form.height, area.top, area.height);
    return form;
}

} // namespace ostrel

#include "ui/Dialogs.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ostrel {

namespace {

/// Places come from the host and may be anything.
Long Add(std::int64_t first, std::int64_t second, std::int64_t third = 0) {
    return static_cast<Long>(std::clamp<std::int64_t>(
        first + second + third, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()));
}

/// Finds the corner of a dialog.
struct Corner {
    const Context& context;
    const Form& form;

    At operator()(const At& place) const { return place; }
    At operator()(const Centred&) const {
        const Bounds place = CentreOnScreen({0, 0, form.width, form.height}, context.platform.screen->Area());
        return {place.left, place.top};
    }
    At operator()(const Beside& place) const {
        constexpr Long Right = 120, Up = 1200;
        const Form& owner = place.control.Owner();
        const Bounds inside = owner.Window() ? owner.Window()->PlaceOf(place.control) : Bounds{};
        return {Add(owner.left, inside.left, Right), Add(owner.top, inside.top, -Up)};
    }
    At operator()(const FromComponent& place) const {
        Long top = 0, left = 0;
        context.events.GetControlPosition(top, left);
        return {Add(left, place.left), Add(top, place.top)};
    }
};

} // namespace

bool ShowDialog(const Dialogs& dialogs, Form& form, const DialogPlace& place) {
    Platform& platform = dialogs.context.platform;
    form.icon = dialogs.properties.Icon;
    form.onTop = dialogs.properties.DialogOnTop;
    const At corner = std::visit(Corner{dialogs.context, form}, place);
    const Bounds fitted =
        FitOnScreen({corner.left, corner.top, form.width, form.height}, platform.screen->Area());
    form.left = fitted.left;
    form.top = fitted.top;
    return form.Show(platform);
}

DialogEvents::DialogEvents(const Context& context, Text name) : closing_{context, std::move(name)} {
    context.events.DialogOpen.Tell(closing_.name);
}

DialogEvents::Closing::~Closing() {
    try {
        context.events.DialogClose.Tell(name);
    } catch (...) {
        // What the dialog brought is not lost because somebody failed to hear of its end.
    }
}

} // namespace ostrel

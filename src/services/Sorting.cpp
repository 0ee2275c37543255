#include "services/Sorting.h"

#include <optional>

#include "services/ShellPasses.h"
#include "services/SortEvents.h"
#include "services/SortKeys.h"

namespace ostrel::services {

namespace {

/// Sorts once by the keys, and then does the passes over the ranks; but only where somebody could look at the
/// pointers in between.
template <class AddKey>
bool SortPointers(Context& context, Array<Long>& pointers, Long count, bool up, AddKey addKey) {
    SortEvents events(context);
    if (count < 2) {
        events.Finished();
        return true;
    }
    SortKeys keys;
    const Long given = std::min(count, pointers.Count());
    keys.Reserve(static_cast<std::size_t>(given));
    for (Long i = 1; i <= given; ++i) addKey(keys, pointers.Get(i));
    keys.Sort();

    std::optional<ShellPasses> passes;
    for (Long gap = count; gap >= 2;) {
        gap /= 2;
        if (events.Watched()) {
            if (!passes) passes.emplace(keys, static_cast<std::size_t>(count), up);
            passes->RunTo(static_cast<std::size_t>(gap));
            passes->Put(pointers);
        }
        if (!events.PassDone()) return false;
    }
    if (!passes || passes->Gap() > 1)
        for (Long i = 1; i <= given; ++i)
            pointers.Put(i, keys.PointerAt(static_cast<std::size_t>(up ? i - 1 : given - i)));
    events.Finished();
    return true;
}

} // namespace

bool SortDate(Context& context, const Array<Date>& values, Array<Long>& pointers, Long count, bool up) {
    return SortPointers(context, pointers, count, up, [&](SortKeys& keys, Long pointer) {
        const Date* value = values.Find(pointer);
        keys.AddNumber(value ? value->serial : 0, pointer);
    });
}

bool SortNumeric(Context& context, const Array<Double>& values, Array<Long>& pointers, Long count, bool up) {
    return SortPointers(context, pointers, count, up,
                        [&](SortKeys& keys, Long pointer) { keys.AddNumber(values.Get(pointer), pointer); });
}

bool SortText(Context& context, const Array<Text>& values, Array<Long>& pointers, Long count, bool up) {
    return SortPointers(context, pointers, count, up, [&](SortKeys& keys, Long pointer) {
        const Text* value = values.Find(pointer);
        keys.AddText(value ? TextView(*value) : TextView(), pointer);
    });
}

} // namespace ostrel::services

#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/Sorting.h"

namespace ostrel {

void OstrelWebHelp::SortDate(const Array<Date>& DateValues, Array<Long>& Pointers, Long NumberSort,
                             Flag SortUp) {
    parts_->guard([&] { services::SortDate(parts_->context, DateValues, Pointers, NumberSort, SortUp); });
}

void OstrelWebHelp::SortNumeric(const Array<Double>& NumericValues, Array<Long>& Pointers, Long NumberSort,
                                Flag SortUp) {
    parts_->guard(
        [&] { services::SortNumeric(parts_->context, NumericValues, Pointers, NumberSort, SortUp); });
}

void OstrelWebHelp::SortText(const Array<Text>& TextValues, Array<Long>& Pointers, Long NumberSort,
                             Flag SortUp) {
    parts_->guard([&] { services::SortText(parts_->context, TextValues, Pointers, NumberSort, SortUp); });
}

} // namespace ostrel

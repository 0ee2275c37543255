#include "control/Guard.h"
#include "services/Sorting.h"

namespace ostrel {

void OstrelWebHelp::SortDate(const Array<Date>& DateValues, Array<Long>& Pointers, Long NumberSort,
                             Flag SortUp) {
    Guarded([&] { services::SortDate(context_, DateValues, Pointers, NumberSort, SortUp); });
}

void OstrelWebHelp::SortNumeric(const Array<Double>& NumericValues, Array<Long>& Pointers, Long NumberSort,
                                Flag SortUp) {
    Guarded([&] { services::SortNumeric(context_, NumericValues, Pointers, NumberSort, SortUp); });
}

void OstrelWebHelp::SortText(const Array<Text>& TextValues, Array<Long>& Pointers, Long NumberSort,
                             Flag SortUp) {
    Guarded([&] { services::SortText(context_, TextValues, Pointers, NumberSort, SortUp); });
}

} // namespace ostrel

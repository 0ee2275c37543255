#pragma once

#include "platform/Context.h"
#include "text/Array.h"

namespace ostrel::services {

// The three sorts of pointers, which are record numbers from 1 into `values`. The values stay; equal ones
// come in the order of the pointers, or in its reverse downward. They raise `SortProgress`, yield after each
// pass of a Shell sort, leave the pointers after each pass as that sort does, and end at a stop. A pointer
// outside the values has the value 0 or an empty text. True where the sort came to its end.

bool SortDate(Context& context, const Array<Date>& values, Array<Long>& pointers, Long count, bool up);
bool SortNumeric(Context& context, const Array<Double>& values, Array<Long>& pointers, Long count, bool up);
/// Ignores case.
bool SortText(Context& context, const Array<Text>& values, Array<Long>& pointers, Long count, bool up);

} // namespace ostrel::services

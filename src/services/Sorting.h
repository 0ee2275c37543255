#pragma once

#include <span>

#include "platform/Context.h"
#include "text/Array.h"

namespace ostrel::services {

// The three sorts of pointers. They raise `SortProgress`, yield after each pass and end at a stop.
// True where the sort came to its end.

bool SortDate(Context& context, std::span<const Date> values, std::span<Long> pointers, Long count, bool up);
bool SortNumeric(Context& context, std::span<const Double> values, std::span<Long> pointers, Long count,
                 bool up);
bool SortText(Context& context, std::span<const TextView> values, std::span<Long> pointers, Long count,
              bool up);

} // namespace ostrel::services

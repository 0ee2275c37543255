#pragma once

#include "text/Text.h"

namespace ostrel::services {

/// "mm:ss"; minutes are not wrapped.
Text MinutesSeconds(Long seconds);
/// "hh:mm" of minutes; hours are not wrapped.
Text HoursMinutes(Long minutes);
/// "hh:mm:ss", hours not wrapped; empty for 0 or below.
Text HoursMinutesSeconds(Long seconds);
/// Whether the text is a time of two or more numeric parts joined by the delimiter, minutes and seconds
/// below 60.
bool IsTime(TextView text, TextView delimiter);

} // namespace ostrel::services

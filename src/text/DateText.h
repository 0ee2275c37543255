#pragma once

#include <optional>

#include "text/Text.h"

namespace ostrel {

/// The date of a calendar day, with the time of day as a fraction.
Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

struct DateParts {
    int year, month, day, hour, minute, second;
};
DateParts PartsOf(Date date);

/// `YYYY-M-D` with "-" or "/", day-first and month-name forms where they cannot be mistaken; a time may
/// follow behind a blank or "T". Nothing for anything else.
std::optional<Date> ParseDate(TextView text);
/// `H:MM`, `H:MM:SS`, AM and PM; the date part is 0.
std::optional<Date> ParseTime(TextView text);
/// Windows-style date text: the masks d, dd, mmm, mmmm, m, mm, yy, yyyy, h, hh, n, nn, s, ss.
Text FormatDate(Date date, TextView mask);

} // namespace ostrel

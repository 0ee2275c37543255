#pragma once

#include <optional>

#include "text/Text.h"

namespace ostrel {

/// The number at the start of a text: blanks, a sign, digits and one point; 0 where there is none. An
/// exponent is not read.
Double LeadingNumber(TextView text);

/// The whole text as a number (sign, digits, one point, exponent; blanks around), or nothing.
std::optional<Double> ToDouble(TextView text);
/// The same as a 32-bit whole number, half to even; nothing out of range.
std::optional<Long> ToLong(TextView text);
std::optional<Long> ToLong(Double value);
/// "True" or "False" in any case, or a number; nothing for anything else.
std::optional<bool> ToFlag(TextView text);

/// Decimal digits, a minus where it is due, no blanks.
Text FromLong(Long value);
void AppendLong(Text& output, long long value);
/// Up to 15 significant digits, no blanks.
Text FromDouble(Double value);

/// A number through a mask of "#", "0" and ".", at 15 significant digits, half away from zero: "#.00" of 0.5
/// is
/// ".50", "#" of 0 is empty; no sign where all digits shown are 0.
Text FormatNumber(Double value, TextView mask);

} // namespace ostrel

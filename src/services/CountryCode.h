#pragma once

#include "text/Text.h"

namespace ostrel::services {

/// The telephone code of the country of the user's locale, such as 1 for the US and 44 for the UK; 1 where
/// the locale names none that is known.
Long CountryCode();
/// The same of a locale's name, such as "de_CH.UTF-8".
Long CountryCodeOf(TextView locale);

} // namespace ostrel::services

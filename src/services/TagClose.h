#pragma once

#include <cstddef>

#include "text/Text.h"

namespace ostrel::services {

/// The ">" that ends a tag, looked for from `from`; one inside double quotes does not end it. NotFound where
/// the text ends first. Places count from 0.
std::size_t TagClosePlace(TextView text, std::size_t from);

} // namespace ostrel::services

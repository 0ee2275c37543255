#pragma once

#include "platform/Files.h"

namespace ostrel {

/// Returns the system's description of an error number, or an empty text.
Text SystemSentence(int error);

/// What the component's caller gets to see of a system error.
FileResult Failure(int error);

/// Maps to the component's own error number where that is more precise than the system's.
FileResult Failure(int error, Long number);

} // namespace ostrel

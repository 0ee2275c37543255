#pragma once

#include "platform/Files.h"

namespace ostrel {

/// The system's sentence for one of its error numbers; empty if it has none.
Text SystemSentence(int error);

/// What the component's caller gets to see of a system error.
FileResult Failure(int error);

/// The component's own number, where another one says more than the system's.
FileResult Failure(int error, Long number);

} // namespace ostrel

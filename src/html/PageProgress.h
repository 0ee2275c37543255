#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

/// Raises `PageCreateProgress` and remembers the count for the events of `InternalBuild`.
inline void TellProgress(const PageScope& scope, TextView message, Long records) {
    scope.settings.ProgressRecords = records;
    scope.context.events.PageCreateProgress.Tell(message, records);
}

} // namespace ostrel::html

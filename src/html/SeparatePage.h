#pragma once

#include "text/Array.h"

namespace ostrel {

/// The record page being created: written by the report engine, read by the host's handlers.
struct SeparatePage {
    Text all, first, last, next, previous;
    /// 0 while no record page is being made.
    Long fields = 0;
    Array<Text> names, values;
};

} // namespace ostrel

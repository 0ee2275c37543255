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

namespace html {

/// The value of a field of the record page being created. Only the letters of names count, in any case.
Text SeparatePageValue(const SeparatePage& page, TextView fieldName);

} // namespace html

} // namespace ostrel

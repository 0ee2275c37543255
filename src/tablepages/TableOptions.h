#pragma once

#include "text/Array.h"

namespace ostrel {

/// Options of the table pages.
struct TableOptions {
#define PROPERTY_ROWS "tablepages/TableOptions.def"
#include "services/PropertyFields.h"
};

} // namespace ostrel

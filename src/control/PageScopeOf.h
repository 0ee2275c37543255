#pragma once

#include "control/State.h"
#include "html/PageScope.h"

namespace ostrel {

/// What the builders of pages reach of one control.
inline html::PageScope PageScopeOf(Context& context, State& state) {
    return {context, state.draft, state.pageSettings, state.fonts, state.service};
}

} // namespace ostrel

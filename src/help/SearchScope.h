#pragma once

#include "help/SearchProperties.h"
#include "help/SearchStore.h"
#include "html/PageScope.h"

namespace ostrel::help {

/// What the help search reaches: its own state, that of the page of results, and the world around it.
struct SearchScope {
    const html::PageScope& page;
    ServiceProperties& service;
    SearchProperties& search;
    SearchStore& store;
};

} // namespace ostrel::help

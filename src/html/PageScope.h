#pragma once

#include "html/HelpProperties.h"
#include "html/PageFonts.h"
#include "html/PageProperties.h"
#include "platform/Context.h"
#include "services/ServiceProperties.h"

namespace ostrel::html {

/// What the builders of pages reach.
struct PageScope {
    Context& context;
    HelpProperties& draft;    ///< the page under construction
    PageProperties& settings; ///< what the host wants of all its pages
    PageFonts& fonts;
    const ServiceProperties& service;
};

} // namespace ostrel::html

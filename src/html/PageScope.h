#pragma once

#include "html/HelpProperties.h"
#include "html/PageFonts.h"
#include "html/PageProperties.h"
#include "platform/Context.h"
#include "services/ServiceProperties.h"

namespace ostrel::html {

/// What the builders of pages reach: the state of the page under construction and the world around it.
struct PageScope {
    Context& context;
    HelpProperties& help;
    PageProperties& page;
    PageFonts& fonts;
    const ServiceProperties& service;
};

} // namespace ostrel::html

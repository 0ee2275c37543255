#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

/// Empties the properties of the page under construction.
void HelpPageInitialise(HelpProperties& draft);
/// Begins a page: its properties are those that the host has set for all pages.
void PageInitialise(const PageScope& scope);
/// The page options' own part of `PageReset`: page texts, numbers and fonts.
void ResetPage(PageProperties& settings, PageFonts& fonts);

} // namespace ostrel::html

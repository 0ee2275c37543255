#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

/// The whole document around a body.
Rope CreatePage(const PageScope& scope, const Rope& body);
/// Breaks long lines at `HelpPageWidth`.
Rope PageLineWrap(const PageScope& scope, const Rope& text);
/// The document of a page of three parts.
Rope InternalBuild(const PageScope& scope, const Rope& part1, const Rope& part2, const Rope& part3);

} // namespace ostrel::html

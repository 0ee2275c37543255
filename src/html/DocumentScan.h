#pragma once

#include "text/Rope.h"

namespace ostrel::html {

/// Whether a text is a document already: holds the start or end of an `<html`, `<header` or `<body` element,
/// in any case. One pass, at the speed of memory.
bool HoldsDocumentTags(const Rope& text);

} // namespace ostrel::html

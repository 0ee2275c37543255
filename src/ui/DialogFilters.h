#pragma once

#include "text/Text.h"

namespace ostrel {

// Filters of the file pickers: pairs of a label and a mask, all separated by "|".

inline constexpr TextView DialogDefaultFilter = "All Files|*.*";
inline constexpr TextView DialogGraphicsFilter =
    "All Files|*.*|Graphic Files|*.bmp; *.gif; *.ico; *.jpeg; *.jpg; *.png; *.wmf";
inline constexpr TextView DialogHTMLFilter = "All Files|*.*|HTML Files|*.html; *.htm; *.shtml; *.chm";
inline constexpr TextView DialogTextFilter = "All Files|*.*|Text Files|*.txt";

/// All files, and those of up to three extensions; one that holds a "." is a mask itself. The label is the
/// first extension.
Text DialogExtensionFilter(const Text& extension, const Text& extension2, const Text& extension3);

} // namespace ostrel

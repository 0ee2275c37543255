#pragma once

#include <string>
#include <vector>

/// The cells of a page's first table as a reader sees them, in UTF-8: a line break element is a line feed,
/// and blanks that do not break are blanks. Rows without any cell's text are left out.
std::vector<std::vector<std::string>> ShownTable(const std::string& html);

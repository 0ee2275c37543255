#pragma once

#include <string_view>

namespace ostrel::tables {

/// The delimiter of CSV text, judged by its beginning: of comma, semicolon, tab and vertical bar the one at
/// which most records have as many values as the first. A comma if no character divides it.
char SniffDelimiter(std::string_view head);

} // namespace ostrel::tables

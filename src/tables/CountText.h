#pragma once

#include <cstddef>
#include <string>

namespace ostrel::tables {

/// A number and what is counted: "1 row", "2 rows".
std::string Counted(std::size_t count, const std::string& thing);
/// A number with commas between its thousands.
std::string Grouped(std::size_t number);

} // namespace ostrel::tables

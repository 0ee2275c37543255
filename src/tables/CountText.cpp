#include "tables/CountText.h"

namespace ostrel::tables {

std::string Counted(std::size_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string Grouped(std::size_t number) {
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;) text.insert(place -= 3, ",");
    return text;
}

} // namespace ostrel::tables

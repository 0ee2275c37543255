#include "tables/PageName.h"

#include "text/CodePage.h"

namespace ostrel::tables {

std::string StemOf(const std::string& path) {
    const std::string name = path.substr(path.find_last_of('/') + 1);
    const std::size_t point = name.rfind('.');
    return point == 0 || point == std::string::npos ? name : name.substr(0, point);
}

bool IsNameCharacter(char c) {
    const unsigned char u = static_cast<unsigned char>(c);
    return (c >= '0' && c <= '9') || (LowerByte(c) >= 'a' && LowerByte(c) <= 'z') || c == '-' || c == '_' ||
           (u >= 0xC0 && u != 0xD7 && u != 0xF7);
}

Text PageNameOf(const std::string& word) {
    Text name;
    std::size_t i = 0;
    while (i < word.size()) {
        const auto scalar = NextScalar(word, i);
        const auto byte = scalar ? ByteOfScalar(*scalar) : std::nullopt;
        name += byte && IsNameCharacter(static_cast<char>(*byte)) ? static_cast<char>(*byte) : '_';
    }
    return name.find_first_not_of('_') == Text::npos ? Text("report") : name;
}

} // namespace ostrel::tables

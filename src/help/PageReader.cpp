#include "help/PageReader.h"

#include <algorithm>

namespace ostrel::help {

TextView PageReader::Read(const Text& path, Text& error, bool& tooLarge) {
    constexpr std::size_t firstRoom = std::size_t{64} << 10;
    error.clear();
    std::unique_ptr<FileReader> reader;
    FileResult result = files_.Open(path, reader);
    std::size_t size = 0;
    for (bool more = true; result && more;) {
        // One byte more than the most shows that the file is too large.
        if (size == buffer_.size()) buffer_.resize(std::min(std::max(2 * size, firstRoom), most_ + 1));
        const std::size_t room = buffer_.size() - size;
        std::size_t count = 0;
        result = reader->Read(buffer_.data() + size, room, count);
        size += count;
        more = count == room && size <= most_;
    }
    tooLarge = result && size > most_;
    if (!result) error = result.text;
    return result && !tooLarge ? TextView(buffer_).substr(0, size) : TextView();
}

} // namespace ostrel::help

#pragma once

#include <algorithm>
#include <cstdint>

#include "text/Text.h"

namespace ostrel::html {

/// What a count alone, with no content behind it, makes a builder repeat: at most this many bytes.
constexpr std::int64_t MostRepeated = std::int64_t{64} << 20;

/// The count, cut where what goes beyond the `given` content would pass the bound; content is never cut.
/// `size` is that of one repetition in bytes.
inline Long BoundedCount(Long count, Long given, std::size_t size) {
    const std::int64_t most =
        given + MostRepeated / static_cast<std::int64_t>(std::max<std::size_t>(size, 1));
    return static_cast<Long>(std::min<std::int64_t>(count, most));
}

} // namespace ostrel::html

#pragma once

#include <cstdint>
#include <vector>

#include "text/Text.h"

namespace ostrel {

/// The colours of one piece of text, as the places where the colour changes. 0 is black, the colour of what
/// nobody has coloured. Positions count from 0 and are below 65536.
class PieceColours {
public:
    static constexpr Long Black = 0;

    Long At(Long at) const;
    /// Follows a change of the text: what stands from `from` to `to` makes room for `inserted` characters of
    /// that colour. `size` is the piece's before the change. Allocates nothing after a `Reserve`.
    void Splice(Long from, Long to, Long inserted, Long colour, Long size);
    void Reserve(std::size_t more = 2) { changes_.reserve(changes_.size() + more); }

    /// The colours behind that position, counted from it.
    PieceColours From(Long at) const;
    void Truncate(Long at);
    /// Appends the colours of the next piece. `size` is this piece's. Allocates nothing after a `Reserve`.
    void Append(const PieceColours& next, Long size);
    std::size_t Changes() const { return changes_.size(); }

    /// Calls `use(start, length, colour)` for each run that is not black.
    template <class Use>
    void EachRun(Long size, Use use) const {
        for (std::size_t i = 0; i < changes_.size(); ++i) {
            const Long end = i + 1 < changes_.size() ? changes_[i + 1].at : size;
            if (changes_[i].colour != Black)
                use(Long{changes_[i].at}, end - changes_[i].at, changes_[i].colour);
        }
    }

private:
    /// From here on the text has that colour, which is another than before.
    struct Change {
        std::uint16_t at;
        Long colour;
    };

    std::vector<Change>::const_iterator FirstBehind(Long at) const;

    std::vector<Change> changes_;
};

} // namespace ostrel

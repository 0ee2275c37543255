#pragma once

#include <cstdint>

#include "text/Array.h"
#include "text/Prefetch.h"

namespace ostrel {

/// A cell in a buffer that the host keeps. Where the HTML differs from the plain value, the plain value
/// stands directly before the HTML in the buffer.
struct PackedCell {
    static constexpr std::uint32_t Same = 0xFFFFFFFF;

    const char* html = nullptr;
    std::uint32_t length = 0;
    std::uint32_t plainLength = Same;

    TextView Html() const { return {html, length}; }
    TextView Plain() const {
        return plainLength == Same ? Html() : TextView{html - plainLength, plainLength};
    }
};

/// The cells of a table as the report engine reads them, (row, column) from 1: a grid of texts, or packed
/// cells, row by row. It refers to them and owns nothing; what lies outside is empty.
class CellTable {
public:
    CellTable() = default;
    explicit CellTable(const Grid<Text>& grid)
        : texts_(grid.Data()), rows_(grid.Rows()), columns_(grid.Columns()) {}
    /// `plainNames` are the plain values of the column names; null where these are to be stripped of tags.
    CellTable(const PackedCell* cells, Long rows, Long columns, const Array<Text>* plainNames = nullptr)
        : packed_(cells), plainNames_(plainNames), rows_(rows), columns_(columns) {}

    Long Rows() const { return rows_; }
    Long Columns() const { return columns_; }
    /// Whether plain values stand beside the HTML, so that they need no stripping.
    bool HasPlain() const { return packed_ != nullptr; }
    /// The plain value of a column's name, or null.
    const Text* PlainName(Long column) const { return plainNames_ ? plainNames_->Find(column) : nullptr; }

    TextView Html(Long row, Long column) const {
        if (!Holds(row, column)) return {};
        return packed_ ? packed_[At(row, column)].Html() : TextView(texts_[At(row, column)]);
    }
    TextView Plain(Long row, Long column) const {
        if (!Holds(row, column)) return {};
        return packed_ ? packed_[At(row, column)].Plain() : TextView(texts_[At(row, column)]);
    }

    /// Asks for the cells of a row ahead of their use, for walks in another order than that of the rows.
    void PrefetchCells(Long row) const {
        if (!Holds(row, 1)) return;
        const auto* cells = packed_ ? reinterpret_cast<const char*>(packed_ + At(row, 1))
                                    : reinterpret_cast<const char*>(texts_ + At(row, 1));
        const std::size_t size =
            static_cast<std::size_t>(columns_) * (packed_ ? sizeof(PackedCell) : sizeof(Text));
        for (std::size_t at = 0; at < std::min(size, MostPrefetched); at += CacheLine) Prefetch(cells + at);
    }
    /// Asks for the texts of a row whose cells are at hand by now.
    void PrefetchTexts(Long row) const {
        if (!packed_ || !Holds(row, 1)) return;
        // The texts of a row lie next to each other.
        const char* const first = packed_[At(row, 1)].html;
        const char* const last = packed_[At(row, columns_)].html;
        Prefetch(first);
        if (last > first && last < first + MostPrefetched)
            for (const char* at = first + CacheLine; at < last + CacheLine; at += CacheLine) Prefetch(at);
    }

private:
    static constexpr std::size_t CacheLine = 64;
    static constexpr std::size_t MostPrefetched = 1024;

    bool Holds(Long row, Long column) const {
        return row >= 1 && row <= rows_ && column >= 1 && column <= columns_;
    }
    std::size_t At(Long row, Long column) const {
        return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column - 1);
    }

    const Text* texts_ = nullptr;
    const PackedCell* packed_ = nullptr;
    const Array<Text>* plainNames_ = nullptr;
    Long rows_ = 0;
    Long columns_ = 0;
};

} // namespace ostrel

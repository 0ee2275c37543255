#pragma once

#include <vector>

#include "tablepages/CellTable.h"
#include "tables/CellText.h"
#include "text/LargeBuffer.h"

namespace ostrel::tables {

/// The cells of a table, each held once, in the order in which they come. A value is appended in pieces and
/// ended; its HTML, where it differs, is stored directly behind it. Nothing moves once it is ended.
class CellStore {
public:
    explicit CellStore(Markup markup = Markup::Escape) : markup_(markup) {}
    CellStore(const CellStore&) = delete;
    CellStore& operator=(const CellStore&) = delete;

    /// Adds to the value in hand.
    void Append(const char* bytes, std::size_t count) {
        if (block_->Size() + count > limit_) MoveToNewBlock(count);
        block_->Append(TextView(bytes, count));
    }
    /// Bytes of the value in hand.
    std::string_view Pending() const { return block_->View().substr(start_); }

    /// Makes a cell of the value in hand. `traits` are those of its bytes. False where the value is not in
    /// its encoding; then there is no cell.
    bool EndCell(unsigned traits, TextEncoding encoding) {
        if ((traits != TraitNone && NeedsEncoding(traits, encoding)) && !Encode(encoding)) return false;
        if (plainLength_ == PackedCell::Same)
            Add({block_->Data() + start_, static_cast<std::uint32_t>(block_->Size() - start_),
                 PackedCell::Same});
        else
            Add({block_->Data() + start_ + plainLength_,
                 static_cast<std::uint32_t>(block_->Size() - start_ - plainLength_), plainLength_});
        plainLength_ = PackedCell::Same;
        start_ = block_->Size();
        return true;
    }

    Markup Kind() const { return markup_; }
    std::size_t Count() const { return cells_.Size() / sizeof(PackedCell); }
    const PackedCell* Cells() const { return reinterpret_cast<const PackedCell*>(cells_.Data()); }
    /// Forgets all cells behind the first `count`; their bytes stay.
    void Truncate(std::size_t count) { cells_.Truncate(count * sizeof(PackedCell)); }

private:
    // Reserved whole, so that a block never moves; what is not touched costs nothing.
    static constexpr std::size_t BlockSize = std::size_t{256} << 20;

    bool NeedsEncoding(unsigned traits, TextEncoding encoding) const;
    bool Encode(TextEncoding encoding);
    void MoveToNewBlock(std::size_t count);
    void Add(const PackedCell& cell) {
        std::memcpy(cells_.Grow(sizeof cell), &cell, sizeof cell);
        cells_.Commit(sizeof cell);
    }

    Markup markup_;
    std::vector<LargeBuffer> blocks_ = std::vector<LargeBuffer>(1);
    LargeBuffer* block_ = blocks_.data();
    std::size_t limit_ = 0; ///< what the last block may hold
    std::size_t start_ = 0; ///< where the value in hand begins in the last block
    std::uint32_t plainLength_ = PackedCell::Same;
    LargeBuffer cells_;
    Text plain_, html_; ///< reused from value to value
};

} // namespace ostrel::tables

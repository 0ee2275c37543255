#pragma once

#include <memory>
#include <span>
#include <vector>

#include "text/Text.h"

namespace ostrel {

/// A text that stands in pieces of shared buffers, so that a page of hundreds of megabytes is never copied
/// while parts, body and document are made of one another. It becomes a Text when somebody asks.
class Rope {
public:
    Rope() = default;
    Rope(Text text) { Append(std::move(text)); }

    /// Takes the text over.
    void Append(Text text);
    /// Shares the other's pieces.
    void Append(const Rope& other);
    /// Refers to text that `owner` keeps alive; a null owner is for literals.
    void Append(std::shared_ptr<const void> owner, TextView view);
    void Clear();

    std::size_t Size() const { return size_; }
    bool Empty() const { return size_ == 0; }
    /// The pieces in order, none of them empty. They live as long as this rope is unchanged.
    std::span<const TextView> Pieces() const { return views_; }

    /// Takes blanks, CR and LF off both ends.
    void TrimCrLf();
    /// One text of all pieces.
    Text ToText() const;

private:
    std::vector<TextView> views_;
    std::vector<std::shared_ptr<const void>> owners_;
    std::size_t size_ = 0;
};

} // namespace ostrel

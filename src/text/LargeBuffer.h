#pragma once

#include <cstddef>
#include <cstring>
#include <utility>

#include "text/Text.h"

namespace ostrel {

/// A buffer that only grows at its end, for pages of hundreds of megabytes. Growth copies nothing, and
/// `Clear` keeps the memory, so that the next page finds it touched. Views of the content hold until the next
/// `Append`, `Grow`, `Reserve` or `Release`. Without memory the growing functions throw `std::bad_alloc`.
class LargeBuffer {
public:
    LargeBuffer() = default;
    ~LargeBuffer() { Release(); }
    LargeBuffer(const LargeBuffer&) = delete;
    LargeBuffer& operator=(const LargeBuffer&) = delete;
    LargeBuffer(LargeBuffer&& other) noexcept { Swap(other); }
    LargeBuffer& operator=(LargeBuffer&& other) noexcept {
        Swap(other);
        return *this;
    }

    /// `text` must not be a view of this buffer.
    void Append(TextView text) {
        if (text.empty()) return;
        std::memcpy(Grow(text.size()), text.data(), text.size());
        size_ += text.size();
    }
    void Append(char byte) {
        *Grow(1) = byte;
        ++size_;
    }

    /// Room for `count` more bytes behind the end. They belong to the buffer once `Commit` says so.
    char* Grow(std::size_t count) {
        if (count > capacity_ - size_) Extend(count);
        return data_ + size_;
    }
    /// Takes in the first `count` bytes of the room that `Grow` gave.
    void Commit(std::size_t count) { size_ += count; }

    /// Makes room for `size` bytes in all.
    void Reserve(std::size_t size) {
        if (size > capacity_) Extend(size - size_);
    }
    /// Cuts the content down to its first `size` bytes.
    void Truncate(std::size_t size) {
        if (size < size_) size_ = size;
    }
    void Clear() { size_ = 0; }
    /// Gives the memory back.
    void Release();

    std::size_t Size() const { return size_; }
    bool Empty() const { return size_ == 0; }
    TextView View() const { return {data_, size_}; }
    char* Data() { return data_; }
    const char* Data() const { return data_; }

private:
    void Extend(std::size_t count);
    void MoveTo(std::size_t needed);
    void Swap(LargeBuffer& other) noexcept {
        std::swap(data_, other.data_);
        std::swap(size_, other.size_);
        std::swap(capacity_, other.capacity_);
        std::swap(range_, other.range_);
    }

    char* data_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    std::size_t range_ = 0; ///< addresses kept for growth, `capacity_` among them
};

} // namespace ostrel

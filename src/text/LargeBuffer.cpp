#include "text/LargeBuffer.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace ostrel {

namespace {

#if defined(__linux__)

constexpr std::size_t HugePage = std::size_t{2} << 20;
// Address space costs nothing until it is touched, and a range that never moves needs no growth at all.
constexpr std::size_t UsualRange = std::size_t{4} << 30;

std::size_t RoundUp(std::size_t size) { return (size + HugePage - 1) & ~(HugePage - 1); }

/// A range aligned to huge pages, or null.
char* MapRange(std::size_t size) {
    const std::size_t whole = size + HugePage;
    void* mapped =
        mmap(nullptr, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED) return nullptr;
    char* const start = static_cast<char*>(mapped);
    const std::size_t head =
        RoundUp(reinterpret_cast<std::uintptr_t>(start)) - reinterpret_cast<std::uintptr_t>(start);
    if (head > 0) munmap(start, head);
    munmap(start + head + size, whole - head - size);
    // The first block stays in small pages, so that a buffer of a small page does not cost a large one.
    if (size > HugePage) madvise(start + head + HugePage, size - HugePage, MADV_HUGEPAGE);
    return start + head;
}

/// Moves a mapping without a copy of its pages; both places are aligned, so that huge pages stay whole.
void MovePages(char* from, char* to, std::size_t size, std::size_t used) {
    if (mremap(from, size, size, MREMAP_MAYMOVE | MREMAP_FIXED, to) != MAP_FAILED) return;
    std::memcpy(to, from, used);
    munmap(from, size);
}

#endif

} // namespace

#if defined(__linux__)

void LargeBuffer::Extend(std::size_t count) {
    if (count > std::numeric_limits<std::size_t>::max() / 4 - size_) throw std::bad_alloc();
    const std::size_t needed = RoundUp(size_ + count);
    // Where address space is short the wish shrinks down to what is needed now.
    std::size_t range = std::max({needed, UsualRange, capacity_ * 2});
    char* fresh = MapRange(range);
    while (!fresh && range > needed) {
        range = std::max(needed, RoundUp(range / 2));
        fresh = MapRange(range);
    }
    if (!fresh) throw std::bad_alloc();
    if (data_) {
        // The two parts are separate mappings, which older systems do not move in one call.
        const std::size_t first = std::min(capacity_, HugePage);
        const std::size_t used = std::min(size_, first);
        MovePages(data_, fresh, first, used);
        if (capacity_ > first) MovePages(data_ + first, fresh + first, capacity_ - first, size_ - used);
    }
    data_ = fresh;
    capacity_ = range;
}

void LargeBuffer::Release() {
    if (data_) munmap(data_, capacity_);
    data_ = nullptr;
    size_ = capacity_ = 0;
}

#else

void LargeBuffer::Extend(std::size_t count) {
    if (count > std::numeric_limits<std::size_t>::max() / 4 - size_) throw std::bad_alloc();
    const std::size_t wanted = std::max({size_ + count, capacity_ + capacity_ / 2, std::size_t{64} << 10});
    char* const fresh = static_cast<char*>(std::realloc(data_, wanted));
    if (!fresh) throw std::bad_alloc();
    data_ = fresh;
    capacity_ = wanted;
}

void LargeBuffer::Release() {
    std::free(data_);
    data_ = nullptr;
    size_ = capacity_ = 0;
}

#endif

} // namespace ostrel

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
// Addresses cost nothing, and a range that never moves needs no growth at all.
constexpr std::size_t UsualRange = std::size_t{4} << 30;
// Memory is asked for in steps, since what is open for writing counts against the limits of the process.
constexpr std::size_t LargestStep = std::size_t{256} << 20;

std::size_t RoundUp(std::size_t size) { return (size + HugePage - 1) & ~(HugePage - 1); }

/// Addresses, aligned to huge pages, with no memory behind them; null where there are none.
char* MapRange(std::size_t size) {
    const std::size_t whole = size + HugePage;
    void* mapped = mmap(nullptr, whole, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED) return nullptr;
    char* const start = static_cast<char*>(mapped);
    const std::size_t head =
        RoundUp(reinterpret_cast<std::uintptr_t>(start)) - reinterpret_cast<std::uintptr_t>(start);
    if (head > 0) munmap(start, head);
    munmap(start + head + size, whole - head - size);
    return start + head;
}

bool OpenForWriting(char* start, std::size_t size) {
    return mprotect(start, size, PROT_READ | PROT_WRITE) == 0;
}

/// Moves a mapping without a copy of its pages; both places are aligned, so that huge pages stay whole.
bool MovePages(char* from, char* to, std::size_t size, std::size_t used) {
    if (mremap(from, size, size, MREMAP_MAYMOVE | MREMAP_FIXED, to) != MAP_FAILED) return true;
    if (!OpenForWriting(to, size)) return false;
    std::memcpy(to, from, used);
    munmap(from, size);
    return true;
}

#endif

} // namespace

#if defined(__linux__)

void LargeBuffer::Extend(std::size_t count) {
    if (count > std::numeric_limits<std::size_t>::max() / 4 - size_) throw std::bad_alloc();
    const std::size_t needed = RoundUp(size_ + count);
    if (needed > range_) MoveTo(needed);
    // A buffer of a small page keeps to one step of small pages; the others are better off with huge ones.
    if (needed > HugePage && capacity_ <= HugePage) madvise(data_, range_, MADV_HUGEPAGE);
    const std::size_t wanted = std::min(capacity_ + std::min(capacity_, LargestStep), range_);
    for (const std::size_t size : {std::max(needed, wanted), needed})
        if (OpenForWriting(data_ + capacity_, size - capacity_)) {
            capacity_ = size;
            return;
        }
    throw std::bad_alloc();
}

void LargeBuffer::MoveTo(std::size_t needed) {
    // Where addresses are short the wish shrinks down to what is needed now.
    std::size_t range = std::max({needed, UsualRange, range_ * 2});
    char* fresh = MapRange(range);
    while (!fresh && range > needed) {
        range = std::max(needed, RoundUp(range / 2));
        fresh = MapRange(range);
    }
    if (!fresh) throw std::bad_alloc();
    if (data_) {
        madvise(fresh, range, MADV_HUGEPAGE);
        if (capacity_ > 0 && !MovePages(data_, fresh, capacity_, size_)) {
            munmap(fresh, range);
            throw std::bad_alloc();
        }
        if (range_ > capacity_) munmap(data_ + capacity_, range_ - capacity_);
    }
    data_ = fresh;
    range_ = range;
}

void LargeBuffer::Release() {
    if (data_) munmap(data_, range_);
    data_ = nullptr;
    size_ = capacity_ = range_ = 0;
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

#pragma once

namespace ostrel {

/// Asks for the memory at an address ahead of its use, which hides the way there in a walk that jumps.
inline void Prefetch(const void* address) {
#if defined(__GNUC__)
    __builtin_prefetch(address);
    // Without a visible effect the compiler drops functions that only prefetch.
    __asm__ volatile("" : : "r"(address));
#else
    static_cast<void>(address);
#endif
}

} // namespace ostrel

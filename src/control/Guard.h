#pragma once

#include <type_traits>

#include "control/OstrelWebHelp.h"

namespace ostrel {

inline constexpr int MaxNestedCalls = 64;

template <class Body>
auto OstrelWebHelp::Guarded(Body body) -> decltype(body()) {
    using Result = decltype(body());
    struct Level {
        int& depth;
        explicit Level(int& d) : depth(d) { ++depth; }
        ~Level() { --depth; }
    } level(depth_);
    if (depth_ <= MaxNestedCalls) {
        try {
            return body();
        } catch (...) {
            // Memory that ran out or a listener that threw: the member ends with its failure.
        }
    }
    if constexpr (!std::is_void_v<Result>) return Result{};
}

} // namespace ostrel

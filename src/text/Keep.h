#pragma once

#include <optional>
#include <utility>

namespace ostrel {

/// Assigns only what converted: a failing statement leaves its target as it was.
template <class Target, class Source>
void Keep(Target& target, std::optional<Source> value) {
    if (value) target = std::move(*value);
}

} // namespace ostrel

#pragma once

#include <span>

#include "text/Text.h"

namespace ostrel::services {

/// A character and the entity that stands for it.
struct SpecialCharacter {
    char character;
    TextView entity;
};

/// The 20 special characters, in their fixed order; the order of decoding depends on it. Shared by all
/// controls.
std::span<const SpecialCharacter> SpecialCharacters();

} // namespace ostrel::services

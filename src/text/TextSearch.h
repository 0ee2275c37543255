#pragma once

#include <cstddef>

#include "text/Text.h"

namespace ostrel {

inline constexpr std::size_t NotFound = TextView::npos;

// Finding and replacing in time linear in the text, whatever text and phrase are. Places count from 0.

/// First place of `phrase` at or behind `from`, ignoring case; NotFound where there is none. Folds as it goes
/// and copies nothing. An empty phrase is found at `from`.
std::size_t FindText(TextView text, TextView phrase, std::size_t from = 0);
/// The same, byte for byte.
std::size_t FindExact(TextView text, TextView phrase, std::size_t from = 0);

/// How often the phrase occurs, overlapping places included. An empty phrase occurs nowhere.
std::size_t CountText(TextView text, TextView phrase);
std::size_t CountExact(TextView text, TextView phrase);

/// Replaces every place of `from`, left to right, not looking at what was put in. An empty `from` changes
/// nothing.
Text ReplaceAll(TextView text, TextView from, TextView to);
/// The same, ignoring case.
Text ReplaceAllText(TextView text, TextView from, TextView to);

} // namespace ostrel

#pragma once

#include "text/Text.h"

namespace ostrel::help {

/// The text in capitals with each accented letter as its base letter, and ligatures as two letters.
Text BaseLetters(TextView text);

/// The letter under which a reader looks the name up: "A" to "Z", an accented one as its base letter; empty
/// for a digit or a sign. `IndexEntry::character` takes it.
Text IndexLetter(TextView name);

/// A key by whose bytes names sort as a reader expects: signs and digits first, then letters, without regard
/// to case and accents.
Text IndexSortKey(TextView name);

} // namespace ostrel::help

#pragma once

#include <string>

#include "text/Text.h"

namespace ostrel::tables {

/// The name of a path without directory and extension.
std::string StemOf(const std::string& path);

/// Whether the names of pages may hold it. Points would be taken for the extension's.
bool IsNameCharacter(char c);

/// Returns the characters of a word that page names and links to them may hold.
Text PageNameOf(const std::string& word);

} // namespace ostrel::tables

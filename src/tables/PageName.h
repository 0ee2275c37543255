#pragma once

#include <string>

#include "text/Text.h"

namespace ostrel::tables {

/// The name of a path without directory and extension.
std::string StemOf(const std::string& path);

/// Whether the names of pages may hold it. Points would be taken for the extension's.
bool IsNameCharacter(char c);

/// What of a word can stand in the names of pages and in links to them.
Text PageNameOf(const std::string& word);

} // namespace ostrel::tables

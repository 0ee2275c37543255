#pragma once

#include <string>

#include "text/Text.h"

namespace ostrel::cli {

/// Returns HTML without tags as UTF-8 for a terminal or a program: entities become the characters that they
/// stand for, and control characters blanks, so that no page can steer a terminal.
std::string PlainText(TextView html);

} // namespace ostrel::cli

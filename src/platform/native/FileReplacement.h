#pragma once

#include <span>
#include <string>

#include "platform/Files.h"
#include "platform/native/SystemCalls.h"

namespace ostrel {

/// Puts the pieces in the place of the file at `path` in one step: whatever fails and whenever the process
/// ends, the old file or the new one stands there whole. A symbolic link stays one, and what it leads to is
/// replaced; mode and owner of an old file are kept. With a `backup` path the old file stands there before
/// the new one takes its name. Paths are the system's.
FileResult ReplaceFile(SystemCalls& calls, const std::string& path, std::span<const TextView> pieces,
                       const std::string& backup = {});

/// What a failure at this path tells: a missing directory is told apart from a missing file.
FileResult PathFailure(SystemCalls& calls, const std::string& path, int error);

} // namespace ostrel

#pragma once

#include <span>
#include <string>

#include "platform/Files.h"
#include "platform/native/SystemCalls.h"

namespace ostrel {

/// Replaces the file at `path` by the pieces in one step: whatever fails and whenever the process
/// ends, either the old or the new file is there, complete. A symbolic link is kept, and its target is
/// replaced; mode and owner of an old file are kept. With a `backup` path the old file is moved there before
/// the new one takes its name. Paths are the system's.
FileResult ReplaceFile(SystemCalls& calls, const std::string& path, std::span<const TextView> pieces,
                       const std::string& backup = {});

/// Returns the error of a failure at this path: a missing directory is distinguished from a missing file.
FileResult PathFailure(SystemCalls& calls, const std::string& path, int error);

} // namespace ostrel

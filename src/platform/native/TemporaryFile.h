#pragma once

#include <span>
#include <string>

#include "platform/native/SystemCalls.h"
#include "text/Text.h"

namespace ostrel {

/// The directory of an absolute path of the system.
std::string DirectoryOfSystemPath(const std::string& path);

/// Writes all pieces, one behind the other; 0 or the system's error.
int WriteAll(SystemCalls& calls, int file, std::span<const TextView> pieces);

/// A file under construction beside its target. It has no name at all where the file system can do that, so
/// that nothing is left of it whenever the process ends; else one by which no page, table or mask of the
/// component goes. A file that was not put in place is deleted at the end. Results are 0 or the system's
/// error.
class TemporaryFile {
public:
    enum class Kind { Unnamed, Named };

    /// `target` must outlive it.
    TemporaryFile(SystemCalls& calls, const std::string& target) : calls_(calls), target_(target) {}
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Makes a named file where the system has no unnamed ones.
    int Open(Kind kind);
    /// In place of `Open` and `Write`: the file at `path` itself, under one more name.
    int Adopt(const std::string& path);
    /// Takes over mode and, where that is allowed, owner of the file that it is to replace.
    int Resemble(const struct stat& model);
    int Write(std::span<const TextView> pieces) { return WriteAll(calls_, file_, pieces); }
    /// Takes the target's name, which is free.
    int PlaceNew();
    /// Replaces the target in one step.
    int PlaceInstead();
    /// Whether the last step failed only because the name was taken meanwhile, or because an unnamed file can
    /// have none here; another attempt with a named one may succeed.
    bool WorthAnotherAttempt() const { return again_; }

private:
    int OpenNamed();
    int GetName();
    int Close();

    SystemCalls& calls_;
    const std::string& target_;
    std::string name_;
    int file_ = -1;
    bool adopted_ = false;
    bool again_ = false;
};

} // namespace ostrel

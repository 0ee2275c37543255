#pragma once

#include <cstddef>

#include "platform/Files.h"

namespace ostrel::help {

/// Reads whole files, one after the other, into one buffer that grows to the largest of them.
class PageReader {
public:
    /// `most` is the size in bytes up to which a file is read.
    PageReader(Files& files, std::size_t most) : files_(files), most_(most) {}

    /// Returns the content of the file, which lives until the next call. A file that cannot be read comes as
    /// an empty text with a sentence in `error`; one that is too large, as an empty text with `tooLarge`.
    /// What counts is what the file holds while it is read, not the size that it had before.
    TextView Read(const Text& path, Text& error, bool& tooLarge);

private:
    Files& files_;
    std::size_t most_;
    Text buffer_;
};

} // namespace ostrel::help

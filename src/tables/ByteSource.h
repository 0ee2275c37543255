#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

#include "tables/InputError.h"

namespace ostrel::tables {

/// Bytes of an input from front to back.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// What messages call it.
    virtual const std::string& Name() const = 0;
    /// Up to `size` bytes into `buffer`; 0 only at the end. Throws `InputError` where reading fails.
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
};

/// A file, or standard input for "-".
class FileSource final : public ByteSource {
public:
    /// Throws `InputError` where the file is missing or cannot be read. `stopWanted` is asked at each read,
    /// and whenever a signal interrupts one.
    explicit FileSource(const std::string& path, StopWanted stopWanted = {});
    ~FileSource() override;
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

    const std::string& Name() const override { return name_; }
    std::size_t Read(char* buffer, std::size_t size) override;

private:
    void EndWhereWanted() const;

    std::string name_;
    StopWanted stopWanted_;
    int handle_ = -1;
};

/// Bytes in memory, for small inputs and tests. One read returns at most `step` bytes.
class MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::string_view bytes, std::size_t step = 1 << 20) : bytes_(bytes), step_(step) {}

    const std::string& Name() const override { return name_; }
    std::size_t Read(char* buffer, std::size_t size) override;

private:
    std::string name_ = "input";
    std::string_view bytes_;
    std::size_t step_;
};

} // namespace ostrel::tables

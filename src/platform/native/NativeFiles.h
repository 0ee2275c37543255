#pragma once

#include "platform/Files.h"
#include "platform/native/NativePaths.h"
#include "platform/native/SystemCalls.h"

namespace ostrel {

/// The files of the system that the program runs on.
class NativeFiles final : public Files {
public:
    explicit NativeFiles(SystemCalls& calls = SystemCalls::Real()) : calls_(calls) {}

    bool IsFile(const Text& path) override;
    bool IsDirectory(const Text& path) override;
    FileResult Size(const Text& path, std::uint64_t& size) override;
    FileResult Written(const Text& path, Date& when) override;
    FileResult Read(const Text& path, Text& content) override;
    FileResult Open(const Text& path, std::unique_ptr<FileReader>& reader) override;
    FileResult Replace(const Text& path, std::span<const TextView> pieces, const Text& backup = {}) override;
    FileResult Delete(const Text& path) override;
    FileResult Rename(const Text& from, const Text& to) override;
    FileResult ClearAttributes(const Text& path) override;
    FileResult MakeDirectory(const Text& path) override;
    FileResult ChangeDirectory(const Text& path) override;
    FileResult ChangeDrive(const Text& drive) override;
    Text CurrentDirectory() override { return paths_.Current(); }
    std::vector<Text> List(const Text& mask) override;
    Text TemporaryDirectory() override;
    FileResult MakeTemporary(const Text& prefix, Text& path) override;
    Text ApplicationDirectory() override;
    Text SystemErrorText(Long number) override;

private:
    SystemCalls& calls_;
    NativePaths paths_;
};

} // namespace ostrel

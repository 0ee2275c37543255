#include "cli/HelpPageFile.h"

#include <filesystem>

#include "platform/native/NativePaths.h"
#include "tables/InputError.h"
#include "tables/ReportLook.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

/// The head of a page lies within its first bytes.
constexpr std::size_t MarkPlace = 8192;

bool HoldsMark(Files& files, const Text& path, const Text& mark) {
    std::unique_ptr<FileReader> reader;
    char start[MarkPlace];
    std::size_t size = 0;
    return files.Open(path, reader) && reader->Read(start, sizeof start, size) &&
           TextView(start, size).find(mark) != TextView::npos;
}

} // namespace

HelpPageFile::HelpPageFile(std::string path, const std::string& maker, bool overwrite)
    : path_(std::move(path)), mark_("<META NAME=\"Generator\" CONTENT=\"ostrel " + maker + "\">"),
      platform_(MakeHeadlessPlatform(false)), web_(platform_) {
    if (path_.empty()) throw tables::InputError("The page to write has no name.");
    std::error_code problem;
    const auto absolute = std::filesystem::absolute(path_, problem).lexically_normal();
    const auto component = NativePaths::FromSystem(absolute.string());
    if (!component) throw tables::InputError(path_ + ": its path holds characters outside Windows-1252.");
    componentPath_ = *component;
    if (std::filesystem::is_directory(absolute, problem))
        throw tables::InputError(path_ + " is a directory.");
    if (!overwrite && std::filesystem::exists(absolute, problem) &&
        !HoldsMark(*platform_.files, componentPath_, mark_))
        throw tables::InputError(path_ + " is there already and ostrel " + maker +
                                 " has not made it; --overwrite replaces it.");
    web_.InitProperties();
    web_.PageReset();
    tables::ApplyLook({}, web_);
    web_.PageMeta(mark_ + "\r\n" + web_.PageMeta());
}

void HelpPageFile::Write(const Text& title, const Text& body) {
    web_.PageInitialise();
    web_.HelpTitle(title);
    const Text page = web_.CreatePage("<H1>" + title + "</H1>\r\n\r\n" + body);
    const TextView pieces[]{page};
    if (const FileResult result = platform_.files->Replace(componentPath_, pieces); !result)
        throw tables::InputError(path_ + " can't be written: " + ToUtf8(result.text) + ".");
}

} // namespace ostrel::cli

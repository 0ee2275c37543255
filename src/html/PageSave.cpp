#include "html/PageSave.h"

#include <algorithm>
#include <limits>

#include "html/PageDocument.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

/// A size as events tell it.
Long SizeAsLong(std::uint64_t size) {
    constexpr std::uint64_t most = std::numeric_limits<Long>::max();
    return static_cast<Long>(std::min(size, most));
}

bool HasParts(const HelpProperties& draft) {
    return !draft.HelpPart1.Empty() || !draft.HelpPart2.Empty() || !draft.HelpPart3.Empty();
}

} // namespace

bool PageFilePath(const PageScope& scope, const Text& filePath, Text& fullPath, Text& error) {
    constexpr TextView setting = "Property [DirectoryHelp]";
    const Text& directory = scope.service.DirectoryHelp;
    fullPath.clear();
    if (filePath.empty())
        error = services::ErrorMessageNotDefined("File Path");
    else if (filePath.find('\\') != NotFound)
        fullPath = filePath;
    else if (directory.empty())
        error = services::ErrorMessageNotDefined(setting);
    else if (!services::DirectoryExists(*scope.context.platform.files, directory))
        error = services::ErrorMessageDoesNotExist(setting, directory);
    else
        fullPath = services::AddMissingBackslash(directory) + filePath;
    return !fullPath.empty();
}

PageSaved SavePage(const PageScope& scope, const Text& filePath) {
    HelpProperties& draft = scope.draft;
    PageSaved saved;
    Text path;
    if (!filePath.empty() && !HasParts(draft))
        saved.error = "No Help Page defined.";
    else
        PageFilePath(scope, filePath, path, saved.error);
    if (!saved.error.empty()) return saved;
    saved.built = true;
    if (draft.HelpRefreshURL.empty() && draft.HelpRefresh >= 1)
        draft.HelpRefreshTarget = services::FileName(path);

    const Rope page = InternalBuild(scope, draft.HelpPart1, draft.HelpPart2, draft.HelpPart3);
    saved.bytesWritten = SizeAsLong(page.Size());
    if (services::FileEquals(*scope.context.platform.files, path, page)) return saved;
    Text fileError;
    saved.newFile = services::WriteFileFull(scope.context, path, page, fileError, {});
    if (!saved.newFile) saved.error = "Help Page can't be saved - " + fileError;
    return saved;
}

void TellPageCreated(const PageScope& scope, const Text& filePath, const PageSaved& saved) {
    // A listener may change the text that the path is taken from.
    const Text path = filePath;
    scope.context.events.PageCreated.Tell(path);
    scope.context.events.PageCreated2.Tell(path, saved.newFile, !saved.error.empty(), saved.bytesWritten);
}

void TellPageKept(const PageScope& scope, const Text& filePath) {
    const Text path = filePath;
    Events& events = scope.context.events;
    events.PageCreated.Tell(path);
    if (!events.PageCreated2.Heard()) return;
    std::uint64_t size = 0;
    scope.context.platform.files->Size(path, size);
    events.PageCreated2.Tell(path, false, false, SizeAsLong(size));
}

} // namespace ostrel::html

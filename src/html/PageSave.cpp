#include <algorithm>
#include <limits>

#include "html/PageParts.h"
#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel::html {

void TellProgress(const PageScope& scope, TextView message, Long records) {
    scope.page.ProgressRecords = records;
    scope.context.events.PageCreateProgress.Tell(message, records);
}

Rope InternalBuild(const PageScope& scope, const Rope& part1, const Rope& part2, const Rope& part3) {
    // A listener may set the parts anew; this page is made of what was asked.
    Rope parts[] = {part1, part2, part3};
    TellProgress(scope, "InternalBuild - Start", scope.page.ProgressRecords);
    Rope body;
    for (Rope& part : parts) {
        part.TrimCrLf();
        if (part.Empty()) continue;
        body.Append(part);
        body.Append(nullptr, LineGap);
    }
    TellProgress(scope, "InternalBuild - CreatePage", scope.page.ProgressRecords);
    Rope page = CreatePage(scope, body);
    TellProgress(scope, "InternalBuild - Finish", scope.page.ProgressRecords);
    return page;
}

bool HelpPageSaveInternal(const PageScope& scope, const Text& filePath, Text& error) {
    HelpProperties& help = scope.help;
    error.clear();
    help.NewFile = false;
    help.ErrorFound = false;
    Text path;
    if (!filePath.empty() && help.HelpPart1.Empty() && help.HelpPart2.Empty() && help.HelpPart3.Empty())
        error = "No Help Page defined.";
    else
        PageFilePath(scope, filePath, path, error);
    if (!error.empty()) {
        help.ErrorFound = true;
        return false;
    }
    if (help.HelpRefreshURL.empty() && help.HelpRefresh >= 1)
        help.HelpRefreshTarget = services::FileName(path);

    const Rope page = InternalBuild(scope, help.HelpPart1, help.HelpPart2, help.HelpPart3);
    constexpr std::size_t most = std::numeric_limits<Long>::max();
    help.BytesWritten = static_cast<Long>(std::min(page.Size(), most));
    if (services::FileEquals(*scope.context.platform.files, path, page)) return true;
    Text fileError;
    if (services::WriteFileFull(scope.context, scope.service.ProgramName, path, page, fileError, {})) {
        help.NewFile = true;
    } else {
        error = "Help Page can't be saved - " + fileError;
        help.ErrorFound = true;
    }
    return true;
}

void TellPageCreated(const PageScope& scope, const Text& filePath) {
    // A listener of the first event may make a page of its own.
    const Flag newFile = scope.help.NewFile;
    const Flag errorFound = scope.help.ErrorFound;
    const Long bytes = scope.help.BytesWritten;
    const Text path = filePath;
    scope.context.events.PageCreated.Tell(path);
    scope.context.events.PageCreated2.Tell(path, newFile, errorFound, bytes);
}

} // namespace ostrel::html

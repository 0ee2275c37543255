#include "help/PrintSelection.h"

#include <algorithm>
#include <unordered_set>

#include "help/PageFiles.h"
#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel::help {

namespace {

bool HasDirectory(const Text& mask) { return mask.find('\\') != Text::npos; }

PageFiles FilesOf(Files& files, const Text& helpDirectory, const Text& mask) {
    return ListPageFiles(files,
                         HasDirectory(mask) ? mask : services::AddMissingBackslash(helpDirectory) + mask);
}

} // namespace

PrintSelection SelectPagesToPrint(const Context& context, JobPanel& panel, const Text& helpDirectory,
                                  const Text& selectMask, const Text& ignoreMask, std::vector<Text>& paths,
                                  Text& error) {
    Files& files = *context.platform.files;
    error.clear();
    paths.clear();
    if (selectMask.empty()) {
        error = "No Select Mask has been entered.";
        return PrintSelection::Failed;
    }
    PanelShown shown(panel, "Locating Help Pages");
    std::unordered_set<Text> ignored; // in capitals
    if (!ignoreMask.empty()) {
        if (!HasDirectory(ignoreMask) && !CheckHelpDirectory(files, helpDirectory, error))
            return PrintSelection::Failed;
        const PageFiles ignore = FilesOf(files, helpDirectory, ignoreMask);
        for (const Text& name : ignore.names) ignored.insert(Upper(ignore.directory + name));
    }

    const PageFiles selected = FilesOf(files, helpDirectory, selectMask);
    for (const Text& name : selected.names) {
        Text path = selected.directory + name;
        if (!ignored.contains(Upper(path))) paths.push_back(std::move(path));
        if (context.run.Pressed()) return PrintSelection::Stopped;
    }
    if (paths.empty()) {
        error = "Select Mask did not select any files.";
        return PrintSelection::Failed;
    }
    std::sort(paths.begin(), paths.end());
    shown.Keep();
    return PrintSelection::Chosen;
}

} // namespace ostrel::help

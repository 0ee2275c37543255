#include "help/PrintPages.h"

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

/// How long one page may take to print, in milliseconds.
constexpr Long LongestPrint = 120'000;

/// Waits for the end of a print, or a stop.
void WaitWhileBusy(const Context& context) {
    constexpr Long turn = 20;
    Clock& clock = *context.platform.clock;
    clock.Yield();
    for (Long waited = 0; context.platform.pane->Busy() && !context.run.Pressed() && waited < LongestPrint;
         waited += turn) {
        clock.Sleep(turn, {});
        clock.Yield();
    }
}

} // namespace

PrintSelection SelectPagesToPrint(const Context& context, const Text& helpDirectory, const Text& selectMask,
                                  const Text& ignoreMask, std::vector<Text>& paths, Text& error) {
    Files& files = *context.platform.files;
    error.clear();
    paths.clear();
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
    return PrintSelection::Chosen;
}

bool PrintSelectedPages(const Context& context, const Text& helpDirectory, const Text& selectMask,
                        const Text& ignoreMask, Text& error) {
    if (selectMask.empty()) {
        error = "No Select Mask has been entered.";
        return false;
    }
    const StopPanelShown shown(context.stopPanel, "Locating Help Pages");
    std::vector<Text> paths;
    const PrintSelection selection =
        SelectPagesToPrint(context, helpDirectory, selectMask, ignoreMask, paths, error);
    if (selection != PrintSelection::Chosen) return selection == PrintSelection::Stopped;

    context.stopPanel.Show("Printing Help Pages");
    const Text before = context.navigator.LocationURL();
    for (const Text& path : paths) {
        context.stopPanel.ShowItem(path.substr(path.rfind('\\') + 1));
        context.navigator.Navigate(path);
        context.platform.clock->Yield();
        context.platform.pane->ExecWB(PaneCommand::Print, PaneCommandOption::DontPromptUser);
        WaitWhileBusy(context);
        if (context.run.Pressed()) break;
    }
    context.navigator.Navigate(before);
    return true;
}

} // namespace ostrel::help

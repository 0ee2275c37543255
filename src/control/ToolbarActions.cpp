#include "control/ToolbarActions.h"

#include "control/FrameDialogs.h"
#include "control/HelpLoader.h"
#include "control/OstrelWebHelp.h"
#include "control/PaneNavigator.h"
#include "control/State.h"

namespace ostrel {

namespace {

void GoBack(const ToolbarScope& scope) { scope.web.GoBack(); }

void GoForward(const ToolbarScope& scope) { scope.web.GoForward(); }

void StopLoading(const ToolbarScope& scope) { scope.web.Cancel(); }

void RefreshPage(const ToolbarScope& scope) { scope.web.RefreshCompletely(); }

/// Loads a page of the host's: an address, or the name of a help page, which is loaded even if it is on view.
void GoPage(const ToolbarScope& scope, const Text& page) {
    if (page.find_first_of("\\/") != Text::npos) {
        scope.navigator.Open(page);
        return;
    }
    scope.help.ForgetCurrent();
    Text ignored;
    scope.web.HelpPageLoad(page, ignored);
}

void GoHomePage(const ToolbarScope& scope) {
    if (const Text page = scope.state.control.HomePage; page.empty())
        scope.web.GoHome();
    else
        GoPage(scope, page);
}

void GoIndexPage(const ToolbarScope& scope) {
    if (const Text page = scope.state.control.IndexPage; !page.empty()) GoPage(scope, page);
}

void SearchPages(const ToolbarScope& scope) {
    Text error;
    if (!scope.web.Search({}, error)) scope.web.MessageError(error);
}

void OpenLocation(const ToolbarScope& scope) { scope.dialogs.OpenLocation(); }

void ShowPageProperties(const ToolbarScope& scope) { scope.dialogs.ShowPageProperties(); }

void PrintPage(const ToolbarScope& scope) { scope.web.PrintPage(); }

void OpenInNewWindow(const ToolbarScope& scope) {
    scope.navigator.Navigate(scope.navigator.LocationURL(), "_blank");
}

void HideToolbar(const ToolbarScope& scope) { scope.web.ToolbarVisible(false); }

/// The press is the host's to hear and to answer.
void LeaveToHost(const ToolbarScope&) {}

void Carry(ToolbarAction action, const ToolbarScope& scope) {
    using Carrier = void (*)(const ToolbarScope&);
    static constexpr std::array<Carrier, ActionCount> carriers{
#define ACTION(id, token, child, word, tip, flags, run) run,
#include "control/ToolbarActions.def"
#undef ACTION
    };
    carriers[static_cast<std::size_t>(action)](scope);
}

const DefaultButton& ButtonOf(ToolbarAction action) {
    return DefaultButtons[static_cast<std::size_t>(action)];
}

} // namespace

void ToolbarActions::Press(ToolbarAction action) {
    scope_.navigator.Focus();
    Text word(ButtonOf(action).word);
    Flag kill = false;
    scope_.web.events.ToolbarClick(word, kill);
    if (kill) return;
    Carry(action, scope_);
    scope_.navigator.Focus();
}

void ToolbarActions::Run(ToolbarAction action) {
    Carry(action, scope_);
    if (!ButtonOf(action).Has(OpensWindow)) scope_.navigator.Focus();
}

} // namespace ostrel

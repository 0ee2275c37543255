#include "control/HelpLoader.h"

#include "control/PageScopeOf.h"
#include "help/PageFiles.h"
#include "html/PageDocument.h"
#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel {

HelpLoader::HelpLoader(Guard& guard, Context& context, State& state, PaneNavigator& navigator)
    : guard_(guard), context_(context), state_(state), navigator_(navigator),
      timer_(context.platform.clock->MakeTimer([this] { Tick(); })) {}

bool HelpLoader::Locate(const Text& page, Text& location, Text& error) const {
    if (!state_.draft.HelpRemote) {
        if (!help::CheckHelpDirectory(*context_.platform.files, state_.service.DirectoryHelp, error))
            return false;
        location = services::AddMissingBackslash(state_.service.DirectoryHelp) + page;
        return true;
    }
    const Text& remote = state_.draft.DirectoryHelpRemote;
    if (remote.empty()) {
        error = services::ErrorMessageNotDefined("Property [DirectoryHelpRemote]");
        return false;
    }
    const bool address = remote.find('/') != Text::npos;
    location = (address ? services::AddMissingSlash(remote) : services::AddMissingBackslash(remote)) + page;
    return true;
}

bool HelpLoader::Load(const Text& page, Text& error) {
    if (page.empty()) {
        error = "No Help Page defined.";
        return false;
    }
    if (page.find_first_of("\\/") != Text::npos) {
        error = "Help Page must not be a full path.";
        return false;
    }
    Text location;
    if (!Locate(page, location, error)) return false;
    if (location == current_) return true;
    if (!timer_->Running() || location != next_) Arm(location);
    return true;
}

bool HelpLoader::LoadInternal(Text& error) {
    const Rope part1 = state_.draft.HelpPart1, part2 = state_.draft.HelpPart2, part3 = state_.draft.HelpPart3;
    if (part1.Empty() && part2.Empty() && part3.Empty()) {
        error = "No Help Page defined.";
        return false;
    }
    if (!help::CheckHelpDirectory(*context_.platform.files, state_.service.DirectoryHelp, error))
        return false;
    const Text robots = state_.draft.HelpRobots;
    state_.draft.HelpRobots = "NoIndex";
    const Rope page = html::InternalBuild(PageScopeOf(context_, state_), part1, part2, part3);
    internal_ = page.ToText();
    const Text path = services::WorkFilePath(state_.service, state_.service.WorkFileNext);
    state_.draft.HelpRobots = robots;
    services::WorkFileNextIncrement(state_.service);
    Text fileError;
    if (!services::WriteFileFull(context_, path, page, fileError, {})) {
        error = "Help Page can't be loaded - " + fileError;
        return false;
    }
    Arm(path);
    return true;
}

void HelpLoader::Arm(const Text& location) {
    timer_->Start(state_.draft.HelpDelay, false);
    next_ = location;
}

void HelpLoader::LoadNow() {
    if (timer_->Running()) Tick();
}

void HelpLoader::Tick() {
    guard_([&] {
        timer_->Stop();
        navigator_.OpenHelpPage(Text(next_));
        // A load that a listener has set up meanwhile still waits.
        if (!timer_->Running()) next_.clear();
    });
}

bool HelpLoader::Exists(const Text& page) const {
    return services::FileExists(*context_.platform.files,
                                services::AddMissingBackslash(state_.service.DirectoryHelp) + page);
}

} // namespace ostrel

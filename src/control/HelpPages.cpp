#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "control/PageScopeOf.h"
#include "html/PageDocument.h"
#include "services/FileServices.h"
#include "services/Paths.h"

namespace ostrel {

Flag OstrelWebHelp::DirectoryHelpStands(Text& error) {
    const Text& directory = state_.service.DirectoryHelp;
    if (directory.empty()) {
        error = services::ErrorMessageNotDefined("Property [DirectoryHelp]");
        return false;
    }
    if (!DirectoryExists(directory)) {
        error = services::ErrorMessageDoesNotExist("Property [DirectoryHelp]", directory);
        return false;
    }
    return true;
}

Flag OstrelWebHelp::HelpPageLoad(const Text& HelpPage, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        if (HelpPage.empty()) {
            ErrorMessage = "No Help Page defined.";
            return false;
        }
        if (HelpPage.find_first_of("\\/") != Text::npos) {
            ErrorMessage = "Help Page must not be a full path.";
            return false;
        }
        Text location;
        if (!state_.help.HelpRemote) {
            if (!DirectoryHelpStands(ErrorMessage)) return false;
            location = services::AddMissingBackslash(state_.service.DirectoryHelp) + HelpPage;
        } else {
            const Text& remote = state_.help.DirectoryHelpRemote;
            if (remote.empty()) {
                ErrorMessage = services::ErrorMessageNotDefined("Property [DirectoryHelpRemote]");
                return false;
            }
            const bool address = remote.find('/') != Text::npos;
            location = (address ? services::AddMissingSlash(remote) : services::AddMissingBackslash(remote)) +
                       HelpPage;
        }
        if (location == frame_->help.HelpPageCurrent) return true;
        const bool armed = frame_->tmrHelp && frame_->tmrHelp->Running();
        if (!armed || location != frame_->help.HelpPageNext) ArmHelp(location);
        return true;
    });
}

Flag OstrelWebHelp::HelpPageLoadInternal(Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        const Rope part1 = state_.help.HelpPart1, part2 = state_.help.HelpPart2,
                   part3 = state_.help.HelpPart3;
        if (part1.Empty() && part2.Empty() && part3.Empty()) {
            ErrorMessage = "No Help Page defined.";
            return false;
        }
        if (!DirectoryHelpStands(ErrorMessage)) return false;
        const Text robots = state_.help.HelpRobots;
        state_.help.HelpRobots = "NoIndex";
        const Rope page = html::InternalBuild(PageScopeOf(context_, state_), part1, part2, part3);
        frame_->help.HelpPageText = page.ToText();
        const Text path = services::WorkFilePath(state_.service, state_.service.WorkFileNext);
        state_.help.HelpRobots = robots;
        services::WorkFileNextIncrement(state_.service);
        Text fileError;
        if (!services::WriteFileFull(context_, path, page, fileError, {})) {
            ErrorMessage = "Help Page can't be loaded - " + fileError;
            return false;
        }
        ArmHelp(path);
        return true;
    });
}

void OstrelWebHelp::ArmHelp(const Text& location) {
    if (frame_->tmrHelp) frame_->tmrHelp->Start(state_.help.HelpDelay, false);
    frame_->help.HelpPageNext = location;
}

void OstrelWebHelp::HelpPageLoadNow() {
    if (frame_->tmrHelp && frame_->tmrHelp->Running()) HelpTick();
}

void OstrelWebHelp::HelpTick() {
    Guarded([&] {
        frame_->tmrHelp->Stop();
        ClockStart();
        frame_->help.HelpNavigation = true;
        const Text location = frame_->help.HelpPageNext;
        events.HelpPageBegin.Tell(location);
        NavigatePane(location);
        // A load that the listener has armed meanwhile stays armed.
        if (!frame_->tmrHelp->Running()) frame_->help.HelpPageNext.clear();
    });
}

Flag OstrelWebHelp::HelpPageExists(const Text& HelpPage) {
    return FileExists(services::AddMissingBackslash(state_.service.DirectoryHelp) + HelpPage);
}

Text OstrelWebHelp::HelpPageCurrent() { return frame_->help.HelpPageCurrent; }

Text OstrelWebHelp::HelpPageNext() { return frame_->help.HelpPageNext; }

Text OstrelWebHelp::HelpPageInternal() { return frame_->help.HelpPageText; }

} // namespace ostrel

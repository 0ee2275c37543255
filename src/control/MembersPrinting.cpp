#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "help/PrintPages.h"

namespace ostrel {

void OstrelWebHelp::PrintPage() {
    parts_->guard([&] { parts_->Pane().ExecWB(PaneCommand::Print, PaneCommandOption::DontPromptUser); });
}

Flag OstrelWebHelp::PrintSelectedPages(const Text& SelectMask, const Text& IgnoreMask, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        return help::PrintSelectedPages(parts_->context, parts_->state.service.DirectoryHelp, SelectMask,
                                        IgnoreMask, ErrorMessage);
    });
}

} // namespace ostrel

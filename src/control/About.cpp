#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "control/Version.h"
#include "ui/AboutForm.h"
#include "ui/Dialogs.h"

namespace ostrel {

void OstrelWebHelp::ShowAboutBox() {
    parts_->guard([&] {
        AboutForm form({.name = "OstrelWebHelp",
                        .major = VersionMajor,
                        .minor = VersionMinor,
                        .revision = VersionRevision,
                        .created = {},
                        .description = "Help pages, reports and HTML for applications.",
                        .disclaimer = {}});
        ShowDialog({parts_->context, parts_->state.dialog}, form, Centred{});
    });
}

void OstrelWebHelp::ShowOstrelAboutBox(const Text& ProgramName, Long Major, Long Minor, Long Revision,
                                       const Text& CreationDate, const Text& Description,
                                       const Text& Disclaimer, Long Top, Long Left) {
    parts_->guard([&] {
        AboutForm form({.name = ProgramName,
                        .major = Major,
                        .minor = Minor,
                        .revision = Revision,
                        .created = CreationDate,
                        .description = Description,
                        .disclaimer = Disclaimer});
        ShowDialog({parts_->context, parts_->state.dialog}, form, At{.left = Left, .top = Top});
    });
}

} // namespace ostrel

#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "control/Version.h"
#include "ui/AboutForm.h"

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
        form.icon = parts_->state.control.Icon;
        if (const Screen* screen = parts_->context.platform.screen.get()) {
            const Bounds place = CentreOnScreen({0, 0, form.width, form.height}, screen->Area());
            form.left = place.left;
            form.top = place.top;
        }
        form.Show(parts_->context.platform);
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
        form.icon = parts_->state.control.Icon;
        form.left = Left;
        form.top = Top;
        form.Show(parts_->context.platform);
    });
}

} // namespace ostrel

#include "control/Guard.h"
#include "control/Version.h"
#include "ui/AboutForm.h"

namespace ostrel {

void OstrelWebHelp::ShowAboutBox() {
    Guarded([&] {
        AboutForm form({.name = "OstrelWebHelp",
                        .major = VersionMajor,
                        .minor = VersionMinor,
                        .revision = VersionRevision,
                        .created = {},
                        .description = "Help pages, reports and HTML for applications.",
                        .disclaimer = {}});
        form.icon = state_.control.Icon;
        const Bounds place =
            CentreOnScreen({0, 0, form.width, form.height}, context_.platform.screen->Area());
        form.left = place.left;
        form.top = place.top;
        form.Show(context_.platform);
    });
}

void OstrelWebHelp::ShowOstrelAboutBox(const Text& ProgramName, Long Major, Long Minor, Long Revision,
                                       const Text& CreationDate, const Text& Description,
                                       const Text& Disclaimer, Long Top, Long Left) {
    Guarded([&] {
        AboutForm form({.name = ProgramName,
                        .major = Major,
                        .minor = Minor,
                        .revision = Revision,
                        .created = CreationDate,
                        .description = Description,
                        .disclaimer = Disclaimer});
        form.icon = state_.control.Icon;
        form.left = Left;
        form.top = Top;
        form.Show(context_.platform);
    });
}

} // namespace ostrel

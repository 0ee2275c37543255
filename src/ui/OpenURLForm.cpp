#include "ui/OpenURLForm.h"

#include "ui/CommonDialogs.h"
#include "ui/DialogFilters.h"

namespace ostrel {

OpenURLForm::OpenURLForm(const Dialogs* dialogs, const Text& program)
    : Form("frmOstrelWebHelpOpenURL", "Open URL"), dialogs_(dialogs) {
    width = 6000;
    height = 1800;
    lblURL.caption =
        program.empty() ? Text("Address or file to open:") : "Address or file to open in " + program + ":";
    cmdURL.beside = &txtURL;
}

void OpenURLForm::Browse() {
    if (!dialogs_) return;
    FilePick pick;
    pick.filter = DialogHTMLFilter;
    pick.filterIndex = 2;
    if (Text path = PickFile(*dialogs_, Beside{cmdURL}, pick); !path.empty()) txtURL.text = std::move(path);
}

} // namespace ostrel
